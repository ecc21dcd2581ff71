// SPDX-License-Identifier: MIT
#include "ui/command_line.h"

#include <QCommandLineParser>
#include <filesystem>

#include "ui/file_name.h"

namespace tidewalk {

namespace {

constexpr const char* kQtOptions[] = {"platform", "style", "stylesheet", "qwindowgeometry", "display"};

struct Arguments {
    QCommandLineParser parser;
    QCommandLineOption help{{"h", "help"}, "Show this help and end."};
    QCommandLineOption version{{"v", "version"}, "Show the version and end."};
    QCommandLineOption folder{"folder", "Use <dir> as the program folder.", "dir"};
    QCommandLineOption screenshot{"screenshot", "Draw the main window into <file.png> and end.", "file.png"};
    QCommandLineOption picture{
        "picture", "Draw puzzle <number> of the collection into <file>, which ends in .png, .svg or .pdf, and end.",
        "file"};
    QCommandLineOption solution{"solution", "With --picture: draw the solution."};
    QCommandLineOption pdf{"pdf", "Print puzzles of the collection, such as 3-7, into <file.pdf> and end.", "file.pdf"};
    QCommandLineOption booklet{
        "booklet", "Make a booklet of puzzles of the collection, such as 3-70, into <file.pdf> and end.", "file.pdf"};
    BookletOptions bookletOptions;
    QCommandLineOption seed{"seed", "Make random draws reproducible. It opens another window.", "number"};
    QCommandLineOption newWindow{"new-window", "Open another window, even if one is open already."};

    Arguments() {
        parser.setApplicationDescription("Play, solve and make bridges puzzles.");
        parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        parser.addOptions({help, version, folder, screenshot, picture, solution, pdf, booklet, seed, newWindow});
        bookletOptions.AddTo(parser);
        // Qt takes these for itself later; until then they must not look like mistakes.
        for (const char* const name : kQtOptions) {
            QCommandLineOption option(name, {}, "value");
            option.setFlags(QCommandLineOption::HiddenFromHelp);
            parser.addOption(option);
        }
        QCommandLineOption reverse("reverse");
        reverse.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(reverse);
        parser.addPositionalArgument("collection", "A collection of puzzles to open.", "[collection");
        parser.addPositionalArgument(
            "number", "The number of the puzzle in it, 1 if not given; with --pdf and --booklet a range.", "[number]]");
    }
};

CommandLine Wrong(const QString& text) {
    CommandLine line;
    line.wish = CommandLine::Wish::Wrong;
    line.text = text;
    return line;
}

QString Absolute(const QString& path) {
    return FileNameText(std::filesystem::absolute(FileNameBytes(path)).lexically_normal().string());
}

/// The first of the names that have to be UTF-8 and are not; "" when all are.
QString StrangeName(const CommandLine& line) {
    const QString output = line.output ? line.output->file : "";
    for (const QString& name : {line.folder.value_or(""), line.screenshot.value_or(""), output}) {
        if (!IsPlainFileName(name)) return name;
    }
    return "";
}

/// What is to be written, and the option that says so; nothing for no file, or more than one.
struct OutputKind {
    OutputOrder::Kind kind;
    const QCommandLineOption* option;
    const char* puzzles;  ///< which of the collection it needs
};

std::vector<OutputKind> KindsGiven(const Arguments& known) {
    const char* const range = "a range of puzzles, such as 3-7";
    std::vector<OutputKind> given;
    for (const OutputKind& kind : {OutputKind{OutputOrder::Kind::Picture, &known.picture, "the number of a puzzle"},
                                   OutputKind{OutputOrder::Kind::Pdf, &known.pdf, range},
                                   OutputKind{OutputOrder::Kind::Booklet, &known.booklet, range}}) {
        if (known.parser.isSet(*kind.option)) given.push_back(kind);
    }
    return given;
}

/// Reads what `--picture`, `--pdf` and `--booklet` ask for. "" when all is well, else what is wrong.
QString ReadOutput(const Arguments& known, const QStringList& positional, CommandLine& line) {
    const std::vector<OutputKind> given = KindsGiven(known);
    if (given.size() > 1) return "Only one of --picture, --pdf and --booklet can be given";
    const auto asksFor = [&given](OutputOrder::Kind kind) { return !given.empty() && given.front().kind == kind; };
    const bool solution = known.parser.isSet(known.solution);
    if (solution && asksFor(OutputOrder::Kind::Pdf))
        return "--solution goes with --picture; pages show the solution anyway";
    if (solution && !asksFor(OutputOrder::Kind::Picture)) return "--solution goes with --picture";
    const QString ofBooklet = known.bookletOptions.AnyGiven(known.parser);
    if (!ofBooklet.isEmpty() && !asksFor(OutputOrder::Kind::Booklet)) return "--" + ofBooklet + " goes with --booklet";
    if (given.empty()) return "";
    const OutputKind& output = given.front();
    if (positional.size() != 2) {
        return "--" + output.option->names().constFirst() + " needs a collection and " + output.puzzles;
    }
    OutputOrder order;
    order.kind = output.kind;
    order.solution = solution;
    order.file = Absolute(known.parser.value(*output.option));
    order.collection = Absolute(positional.at(0));
    if (!ReadPuzzleRange(positional.at(1), order)) {
        return (output.kind == OutputOrder::Kind::Picture ? "This is no puzzle number: "
                                                          : "This is no range of puzzles: ") +
               positional.at(1);
    }
    if (QString wrong = known.bookletOptions.Read(known.parser, order.booklet); !wrong.isEmpty()) return wrong;
    line.output = order;
    return "";
}

}  // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
    Arguments known;
    QCommandLineParser& parser = known.parser;
    if (!parser.parse(arguments)) return Wrong(parser.errorText());
    CommandLine line;
    if (parser.isSet(known.help)) {
        line.wish = CommandLine::Wish::Help;
        line.text = parser.helpText();
        return line;
    }
    if (parser.isSet(known.version)) {
        line.wish = CommandLine::Wish::Version;
        line.text = "tidewalk " TIDEWALK_VERSION;
        return line;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 2) return Wrong("Too many arguments: " + positional.at(2));
    for (const QCommandLineOption* const option :
         {&known.folder, &known.screenshot, &known.picture, &known.pdf, &known.booklet, &known.seed}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty()) {
            return Wrong("Nothing is given for --" + option->names().constFirst());
        }
    }
    bool isNumber = true;
    if (parser.isSet(known.seed)) line.seed = parser.value(known.seed).toULongLong(&isNumber);
    if (!isNumber) return Wrong("The seed is no number: " + parser.value(known.seed));
    if (!positional.isEmpty() && positional.at(0).isEmpty()) return Wrong("The collection has no name");
    if (const QString wrong = ReadOutput(known, positional, line); !wrong.isEmpty()) return Wrong(wrong);
    if (positional.size() == 2 && !line.output) line.puzzleNumber = positional.at(1).toInt(&isNumber);
    if (!isNumber || line.puzzleNumber.value_or(1) < 1) return Wrong("This is no puzzle number: " + positional.at(1));
    if (!positional.isEmpty()) line.collection = Absolute(positional.at(0));
    if (parser.isSet(known.folder)) line.folder = Absolute(parser.value(known.folder));
    if (parser.isSet(known.screenshot)) line.screenshot = Absolute(parser.value(known.screenshot));
    line.namesPlatform = parser.isSet("platform") || parser.isSet("display");
    // They speak of a window that is not there yet.
    line.ownWindow = parser.isSet(known.newWindow) || line.seed || line.screenshot;
    for (const char* const name : kQtOptions)
        line.ownWindow = line.ownWindow || parser.isSet(name);
    const QString strange = StrangeName(line);
    return strange.isEmpty() ? line : Wrong("Only a collection may have a name that is not in UTF-8: " + strange);
}

}  // namespace tidewalk
