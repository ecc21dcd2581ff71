// SPDX-License-Identifier: MIT
#include "ui/command_line.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace tidewalk {

namespace {

struct Arguments {
    QCommandLineParser parser;
    QCommandLineOption help{{"h", "help"}, "Show this help and end."};
    QCommandLineOption version{{"v", "version"}, "Show the version and end."};
    QCommandLineOption folder{"folder", "Use <dir> as the program folder.", "dir"};
    QCommandLineOption screenshot{"screenshot", "Draw the main window into <file.png> and end.", "file.png"};
    QCommandLineOption seed{"seed", "Make random draws reproducible.", "number"};

    Arguments() {
        parser.setApplicationDescription("Play, solve and make bridges puzzles.");
        parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        parser.addOptions({help, version, folder, screenshot, seed});
        // Qt takes these for itself later; until then they must not look like mistakes.
        for (const char* const name : {"platform", "style", "stylesheet", "qwindowgeometry", "display"}) {
            QCommandLineOption option(name, {}, "value");
            option.setFlags(QCommandLineOption::HiddenFromHelp);
            parser.addOption(option);
        }
        parser.addPositionalArgument("collection", "A collection of puzzles to open.", "[collection");
        parser.addPositionalArgument("number", "The number of the puzzle in it, 1 if not given.", "[number]]");
    }
};

CommandLine Wrong(const QString& text) {
    CommandLine line;
    line.wish = CommandLine::Wish::Wrong;
    line.text = text;
    return line;
}

QString Absolute(const QString& path) {
    return QFileInfo(path).absoluteFilePath();
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
    for (const QCommandLineOption* const option : {&known.folder, &known.screenshot, &known.seed}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty()) {
            return Wrong("Nothing is given for --" + option->names().constFirst());
        }
    }
    bool isNumber = true;
    if (parser.isSet(known.seed)) line.seed = parser.value(known.seed).toULongLong(&isNumber);
    if (!isNumber) return Wrong("The seed is no number: " + parser.value(known.seed));
    if (positional.size() == 2) line.puzzleNumber = positional.at(1).toInt(&isNumber);
    if (!isNumber || line.puzzleNumber.value_or(1) < 1) return Wrong("This is no puzzle number: " + positional.at(1));
    if (!positional.isEmpty() && positional.at(0).isEmpty()) return Wrong("The collection has no name");
    if (!positional.isEmpty()) line.collection = Absolute(positional.at(0));
    if (parser.isSet(known.folder)) line.folder = Absolute(parser.value(known.folder));
    if (parser.isSet(known.screenshot)) line.screenshot = Absolute(parser.value(known.screenshot));
    line.namesPlatform = parser.isSet("platform");
    return line;
}

}  // namespace tidewalk
