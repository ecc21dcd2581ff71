// SPDX-License-Identifier: MIT
#include "cli/arguments.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "cli/commands.h"
#include "cli/descriptor_buffers.h"
#include "generator/character.h"

namespace tidewalk {

namespace {

constexpr int kMostJobs = 256;
constexpr int kMostNumber = std::numeric_limits<int>::max() - 1;

/// What the arguments ask for. The parser writes into these.
struct Wishes {
    ListOptions list;
    SolveOptions solve;
    CheckOptions check;
    CreateOptions create;
    ExplainOptions explain;
    HintOptions hint;
    ShowOptions show;
    ShuffleOptions shuffle;
    ConvertOptions convert;
    AppendOptions append;
    DeleteOptions remove;
    ExportOptions exported;
    ImportOptions import;
    std::string range = "all";
    std::string laid;
    std::string noMore;
    std::function<int(Console&)> command;  ///< the one that was chosen
};

/// The puzzles that RANGE means; nothing for a text that is none.
std::optional<PuzzleRange> RangeOf(const std::string& text) {
    return text == "all" ? PuzzleRange{} : ParsePuzzleRange(text);
}

/// Takes a number of 1 to 9999 off the front of the text; false when there is none.
bool TakeNumber(std::string_view& text, int& number) {
    constexpr std::size_t kDigits = 4;
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    if (digits == 0 || digits > kDigits) return false;
    std::from_chars(text.data(), text.data() + digits, number);
    text.remove_prefix(digits);
    return number > 0;
}

/// Takes a character off the front of the text; false when another one stands there.
bool TakeCharacter(std::string_view& text, char wanted) {
    if (text.empty() || text.front() != wanted) return false;
    text.remove_prefix(1);
    return true;
}

/// Pairs of islands as "12-15", `counted` with ":" and 1 or 2 bridges behind each; nothing for a text of another form.
std::optional<std::vector<PlayedPair>> ParsePairs(const std::string& text, bool counted) {
    std::vector<PlayedPair> pairs;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        PlayedPair pair;
        std::string_view rest = word;
        if (!TakeNumber(rest, pair.a) || !TakeCharacter(rest, '-') || !TakeNumber(rest, pair.b)) return std::nullopt;
        if (counted && (!TakeCharacter(rest, ':') || !TakeNumber(rest, pair.bridges))) return std::nullopt;
        if (!rest.empty() || pair.bridges > kMostBridges) return std::nullopt;
        pairs.push_back(pair);
    }
    return pairs;
}

/// The position in which these bridges lie and these pairs take no further one.
std::vector<PlayedPair> PositionOf(const std::string& laid, const std::string& noMore) {
    std::vector<PlayedPair> position = ParsePairs(laid, true).value_or(std::vector<PlayedPair>());
    for (PlayedPair pair : ParsePairs(noMore, false).value_or(std::vector<PlayedPair>())) {
        pair.noMore = true;
        const auto found = std::find_if(position.begin(), position.end(), [&pair](const PlayedPair& other) {
            return std::minmax(pair.a, pair.b) == std::minmax(other.a, other.b);
        });
        if (found != position.end()) {
            found->noMore = true;
        } else {
            position.push_back(pair);
        }
    }
    return position;
}

/// The grades as they are ordered.
const std::map<std::string, Grade> kGrades{
    {"veasy", Grade::VEasy}, {"easy", Grade::Easy}, {"hard", Grade::Hard}, {"vhard", Grade::VHard}};

/// When drawings are coloured, and how large their cells are, as one says it.
const std::map<std::string, Colouring> kColourings{
    {"auto", Colouring::Auto}, {"always", Colouring::Always}, {"never", Colouring::Never}};
const std::map<std::string, std::optional<bool>> kCellSizes{{"auto", std::nullopt}, {"small", false}, {"large", true}};

/// The forms of grids.
const std::map<std::string, GridForm> kGridForms{
    {"plain", GridForm::Plain}, {"spaced", GridForm::Spaced}, {"sized", GridForm::Sized}};

/// What the figures of a character may be.
struct FigureRule {
    int most;   ///< what no size has more of
    int slack;  ///< a single figure means so many more or less, too
};

/// Takes a figure off the front of the text; false when there is none up to `most`.
bool TakeFigure(std::string_view& text, int most, int& figure) {
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    const auto [end, error] = std::from_chars(text.data(), text.data() + digits, figure);
    text.remove_prefix(digits);
    return error == std::errc() && figure <= most;
}

/// The figures that "N", "A-B" or "A-" mean; nothing for any other text.
std::optional<Figures> ParseFigures(std::string_view text, FigureRule rule) {
    Figures figures{0, rule.most};
    if (!TakeFigure(text, rule.most, figures.least)) return std::nullopt;
    if (text.empty()) {
        const int figure = figures.least;
        return Figures{std::max(figure - rule.slack, 0), std::min(figure + rule.slack, rule.most)};
    }
    if (!TakeCharacter(text, '-')) return std::nullopt;
    if (!text.empty() && !TakeFigure(text, rule.most, figures.most)) return std::nullopt;
    return text.empty() && figures.least <= figures.most ? std::optional(figures) : std::nullopt;
}

/// The name that the commands know the standard input or output by, if the path stands for that descriptor.
std::string NamedAsStandard(const std::string& path, int descriptor) {
    return OwnDescriptor(path) == descriptor ? kStandard : path;
}

std::string NameOfInput(const std::string& path) {
    return NamedAsStandard(path, STDIN_FILENO);
}

std::string NameOfOutput(const std::string& path) {
    return NamedAsStandard(path, STDOUT_FILENO);
}

/// Declares the commands. `Wishes` has to outlive the parser.
class Parser {
 public:
    explicit Parser(Wishes& wishes)
        : wishes_(wishes),
          app_("Lists, solves, checks and makes bridges puzzles in collection files.", "tidewalk-cli") {
        app_.set_version_flag("-v,--version", "tidewalk-cli " TIDEWALK_VERSION);
        app_.require_subcommand(1);
        app_.footer(R"(A file name of "-" is the standard input or output.)"
                    "\nExit code: 0 done, 1 something failed or was refused, 2 wrong usage, 130 stopped with Ctrl-C.");
        AddReaders();
        AddCreate();
        AddShow();
        AddTeachers();
        AddRewriters();
        AddMovers();
    }

    CLI::App& App() { return app_; }

 private:
    template <class Options>
    CLI::App* Command(const char* name, const char* text, Options& options, int (*run)(Console&, const Options&)) {
        CLI::App* const command = app_.add_subcommand(name, text);
        command->add_flag("--json", options.json, "Report in JSON");
        command->callback([this, &options, run] {
            wishes_.command = [&options, run](Console& console) { return run(console, options); };
        });
        return command;
    }

    static void AddFile(CLI::App* command, std::string& file, const char* text = "The collection") {
        command->add_option("FILE", file, text)->required()->transform(NameOfInput);
    }

    static void AddTarget(CLI::App* command, std::string& file) {
        command->add_option("TARGET", file, "The collection to append to")->required()->transform(NameOfOutput);
    }

    /// "" for a whole number of 64 bits, else what is wrong.
    static std::string WhatIsNoSeed(const std::string& text) {
        std::uint64_t seed = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
        const bool isSeed = error == std::errc() && end == text.data() + text.size();
        return isSeed ? "" : "\"" + text + "\" is no whole number from 0 to 18446744073709551615";
    }

    static std::string WhatIsNoTime(const std::string& text) {
        double seconds = -1;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
        const bool isTime =
            error == std::errc() && end == text.data() + text.size() && seconds >= 0 && seconds <= kMostSeconds;
        return isTime ? "" : "\"" + text + "\" is no number of seconds from 0 to 1000000000";
    }

    static void AddNumber(CLI::App* command, int& number) {
        command->add_option("N", number, "The number of the puzzle in it")
            ->required()
            ->check(CLI::Range(1, kMostNumber));
    }

    void AddRange(CLI::App* command) {
        command->add_option("RANGE", wishes_.range, "Which puzzles: N, A-B or all")->check([](const std::string& text) {
            return RangeOf(text) ? "" : "\"" + text + "\" is no number, no range A-B and not \"all\"";
        });
    }

    static void AddFigures(CLI::App* command, const char* name, std::optional<Figures>& figures, FigureRule rule,
                           const char* text) {
        const auto take = [name, &figures, rule](const std::string& given) {
            figures = ParseFigures(given, rule);
            if (figures) return;
            throw CLI::ValidationError(
                name, "\"" + given + "\" is no N, no A-B with A not above B and no A-, of whole numbers from 0 to " +
                          std::to_string(rule.most));
        };
        command->add_option_function<std::string>(name, take, text)->type_name("N|A-B|A-");
    }

    static std::string WhatIsNoPairs(const std::string& text, bool counted) {
        if (ParsePairs(text, counted)) return "";
        return "\"" + text + "\" is no list such as \"" + (counted ? "12-15:2 15-40:1" : "12-30 15-40") + "\"";
    }

    static void AddJobs(CLI::App* command, int& jobs) {
        command->add_option("--jobs", jobs, "How many puzzles to work on at the same time")
            ->type_name("N")
            ->check(CLI::Range(1, kMostJobs));
    }

    void AddReaders() {
        CLI::App* const list = Command("list", "Print a line for every puzzle", wishes_.list, ListPuzzles);
        AddFile(list, wishes_.list.file);
        AddRange(list);
        list->add_flag("--grades", wishes_.list.grades, "With the grade and the number of solutions");
        AddJobs(list, wishes_.list.jobs);

        CLI::App* const solve = Command("solve", "Solve puzzles", wishes_.solve, SolvePuzzles);
        AddFile(solve, wishes_.solve.file);
        AddRange(solve);
        solve->add_option("--out", wishes_.solve.out, "Write the solved puzzles with their bridges to this file")
            ->type_name("FILE")
            ->transform(NameOfOutput);
        solve
            ->add_option("--max-trials", wishes_.solve.maxTrials,
                         "Give a puzzle up after so many trials; 0 is rules alone. Without it an exact solver goes on "
                         "where trials lead nowhere")
            ->type_name("N")
            ->check(CLI::Range(0, kMostNumber));
        solve->add_flag("--links", wishes_.solve.links,
                        "Print the bridges as id-id:count; an id counts the cells row by row from 1");
        AddJobs(solve, wishes_.solve.jobs);

        CLI::App* const check = Command("check", "Judge the stored bridges and whether there is exactly one solution",
                                        wishes_.check, CheckPuzzles);
        AddFile(check, wishes_.check.file);
        AddRange(check);
        wishes_.check.seconds = kDefaultSeconds;
        check->add_option("--seconds", wishes_.check.seconds, "The time for each puzzle; past it, it is undecided")
            ->type_name("S")
            ->capture_default_str()
            ->check(WhatIsNoTime);
        AddJobs(check, wishes_.check.jobs);
    }

    void AddCreate() {
        CreateOptions& options = wishes_.create;
        CLI::App* const create = Command("create", "Make puzzles and append them to a file", options, CreatePuzzles);
        create->add_option("SIZE", options.size, "9, 9x12 or random; 7 to 25 rows and columns")->required();
        create->add_option("--count", options.count, "How many puzzles")
            ->type_name("N")
            ->capture_default_str()
            ->check(CLI::Range(1, kMostNumber));
        create->add_option("--seed", options.seed, "The same seed makes the same run of puzzles")
            ->type_name("S")
            ->check(WhatIsNoSeed);
        create->add_option("--first", options.first, "Begin with puzzle K of the run")
            ->type_name("K")
            ->capture_default_str()
            ->check(CLI::Range(1, kMostNumber));
        AddOrder(create, options.order);
        create->add_option("--out", options.out, "The file to append to")
            ->type_name("FILE")
            ->required()
            ->transform(NameOfOutput);
        AddJobs(create, options.jobs);
    }

    static void AddOrder(CLI::App* create, PuzzleOrder& order) {
        CLI::Option* const any = create->add_flag_callback(
            "--any", [&order] { order.oneSolution = false; }, "Keep puzzles with several solutions, too");
        create
            ->add_flag_callback(
                "--unique", [] {}, "Keep only puzzles with exactly one solution; so it is without --any")
            ->excludes(any);
        create
            ->add_option_function<std::string>(
                "--grade", [&order](const std::string& name) { order.grade = kGrades.at(name); },
                "Keep only puzzles of this grade")
            ->type_name("veasy|easy|hard|vhard")
            ->transform(CLI::IsMember(kGrades, CLI::ignore_case).description(""))
            ->excludes(any);
        AddFigures(create, "--density", order.character.density, {kMostDensity, 3},
                   "Islands in every 100 cells; N is give or take 3");
        AddFigures(create, "--loops", order.character.loops, {MostLoops({kMaxSide, kMaxSide}), 0},
                   "How many loops the bridges close");
        AddFigures(create, "--doubles", order.character.doubles, {100, 5},
                   "Double bridges in every 100 bridged pairs; N is give or take 5");
    }

    void AddShow() {
        ShowOptions& options = wishes_.show;
        CLI::App* const show = Command("show", "Draw a puzzle in the terminal, or as a picture", options, ShowPuzzle);
        AddFile(show, options.file);
        AddNumber(show, options.number);
        show->add_flag("--solution", options.solution, "With the stored bridges");
        CLI::Option* const svg = show->add_flag("--svg", options.svg, "Print a picture in SVG");
        svg->excludes(show->get_option("--json"));
        const auto addWord = [show, svg](const char* name, const char* text, const char* words, const auto& values,
                                         auto& value) {
            show->add_option_function<std::string>(
                    name, [&values, &value](const std::string& word) { value = values.at(word); }, text)
                ->type_name(words)
                ->check(CLI::IsMember(values).description(""))
                ->excludes(svg);
        };
        addWord("--color", "With colours; auto is on a terminal, unless NO_COLOR is set", "auto|always|never",
                kColourings, options.colour);
        addWord("--cells", "How large cells are; auto is large on a terminal with room for it", "auto|small|large",
                kCellSizes, options.largeCells);
        show->add_flag("--ascii", options.ascii, "Plain characters, bridges of - = | and \"")->excludes(svg);
    }

    void AddTeachers() {
        CLI::App* const explain =
            Command("explain", "Tell the way to the solution, step by step", wishes_.explain, ExplainPuzzles);
        AddFile(explain, wishes_.explain.file);
        AddRange(explain);
        AddJobs(explain, wishes_.explain.jobs);

        CLI::App* const hint =
            Command("hint", "Tell the next step from a position, or what is wrong with it", wishes_.hint, GiveHint);
        AddFile(hint, wishes_.hint.file);
        AddNumber(hint, wishes_.hint.number);
        hint->add_option("--laid", wishes_.laid,
                         "The bridges that lie, as solve --links prints them, id-id:count with blanks between")
            ->type_name("PAIRS")
            ->check([](const std::string& text) { return WhatIsNoPairs(text, true); });
        hint->add_option("--not", wishes_.noMore,
                         "Pairs of islands that take no further bridge, as id-id with blanks between")
            ->type_name("PAIRS")
            ->check([](const std::string& text) { return WhatIsNoPairs(text, false); });
    }

    void AddRewriters() {
        CLI::App* const shuffle =
            Command("shuffle", "Write a collection in random order, without lines that it holds twice", wishes_.shuffle,
                    ShuffleCollection);
        AddFile(shuffle, wishes_.shuffle.file);
        shuffle->add_option("--seed", wishes_.shuffle.seed, "The same seed gives the same order")
            ->type_name("S")
            ->check(WhatIsNoSeed);
        AddFile(Command("convert", "Write a collection of the older layout as one of today's", wishes_.convert,
                        ConvertCollection),
                wishes_.convert.file);
    }

    void AddMovers() {
        CLI::App* const append =
            Command("append", "Append a puzzle to another collection", wishes_.append, AppendPuzzle);
        AddFile(append, wishes_.append.file);
        AddNumber(append, wishes_.append.number);
        AddTarget(append, wishes_.append.target);

        CLI::App* const remove = Command("delete", "Take a puzzle out of its collection", wishes_.remove, DeletePuzzle);
        AddFile(remove, wishes_.remove.file);
        AddNumber(remove, wishes_.remove.number);

        AddGridMovers();
    }

    void AddGridMovers() {
        ExportOptions& options = wishes_.exported;
        CLI::App* const exported = Command("export", "Write the bare numbers of puzzles", options, ExportGrids);
        AddFile(exported, options.file);
        AddRange(exported);
        exported->get_option("RANGE")->required();
        exported->add_option("GRID", options.grid, "The file to write; the standard output if not given")
            ->transform(NameOfOutput);
        exported
            ->add_option_function<std::string>(
                "--form", [&options](const std::string& name) { options.form = kGridForms.at(name); },
                "Rows alone, with blanks between the columns, or behind a line with the size")
            ->type_name("plain|spaced|sized")
            ->transform(CLI::IsMember(kGridForms, CLI::ignore_case).description(""));
        exported->add_flag("--force", options.force, "Replace a file that is there");

        ImportOptions& wanted = wishes_.import;
        CLI::App* const import = Command("import", "Append bare grids to a collection", wanted, ImportGrids);
        import->add_option("GRID", wanted.grid, "The file with the grids")->required()->transform(NameOfInput);
        AddTarget(import, wanted.target);
        CLI::Option* const one = import->add_option("--grid", wanted.number, "Which grid of a file that holds several")
                                     ->type_name("N")
                                     ->check(CLI::Range(1, kMostNumber));
        import->add_flag("--all", wanted.all, "All of them that are puzzles")->excludes(one);
    }

    static constexpr double kDefaultSeconds = 10;
    static constexpr double kMostSeconds = 1e9;

    Wishes& wishes_;
    CLI::App app_;
};

/// The output that is a disk, if one is; otherwise "".
std::string DiskAmongOutputs(const Wishes& wishes) {
    const std::string solved = wishes.solve.out.value_or("");
    for (const std::string& output :
         {solved, wishes.create.out, wishes.append.target, wishes.import.target, wishes.exported.grid}) {
        std::error_code ignored;
        if (std::filesystem::is_block_file(output, ignored)) return output;
    }
    return "";
}

/// What is wrong with options that do not go together; "" when all is well.
std::string WhatDoesNotGoTogether(const Wishes& wishes) {
    const bool solveToOutput = wishes.solve.out == kStandard;
    if (solveToOutput && (wishes.solve.json || wishes.solve.links)) {
        return "with --out - the standard output holds records; --json and --links have no place there";
    }
    const bool recordsToOutput = wishes.create.out == kStandard || wishes.append.target == kStandard ||
                                 wishes.import.target == kStandard || IsStream(wishes.shuffle.file) ||
                                 IsStream(wishes.convert.file);
    const bool json =
        wishes.create.json || wishes.append.json || wishes.import.json || wishes.shuffle.json || wishes.convert.json;
    const bool gridToOutput = wishes.exported.grid == kStandard && wishes.exported.json;
    if ((recordsToOutput && json) || gridToOutput)
        return "there is nothing to report with --json, the output is the result";
    if (wishes.create.first - 1 > kMostNumber - wishes.create.count) {
        return "a run has " + std::to_string(kMostNumber) + " puzzles, and --first and --count go beyond them";
    }
    const std::string disk = DiskAmongOutputs(wishes);
    return disk.empty() ? "" : disk + ": that is a disk, no file to write";
}

/// The first argument, if it stands where a command has to and is none; otherwise "".
std::string UnknownCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front().starts_with('-')) return "";
    const auto isNamed = [&](const CLI::App* command) { return command->get_name() == arguments.front(); };
    return app.get_subcommands(isNamed).empty() ? arguments.front() : "";
}

int WrongUsage(Console& console, const std::string& message) {
    Say(console, message);
    console.err << "Run with --help for more information.\n" << std::flush;
    return kWrongUsage;
}

}  // namespace

int RunCommandLine(Console& console, std::vector<std::string> arguments) {
    try {
        Wishes wishes;
        Parser parser(wishes);
        if (const std::string word = UnknownCommand(parser.App(), arguments); !word.empty()) {
            return WrongUsage(console, "there is no command \"" + word + "\"");
        }
        try {
            // The parser takes the last one first.
            std::reverse(arguments.begin(), arguments.end());
            parser.App().parse(std::move(arguments));
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() != 0) return WrongUsage(console, error.what());
            return parser.App().exit(error, console.out, console.err);
        }
        const PuzzleRange range = RangeOf(wishes.range).value_or(PuzzleRange{});
        wishes.list.range = wishes.solve.range = wishes.check.range = wishes.explain.range = wishes.exported.range =
            range;
        wishes.hint.played = PositionOf(wishes.laid, wishes.noMore);
        if (const std::string wrong = WhatDoesNotGoTogether(wishes); !wrong.empty()) return WrongUsage(console, wrong);
        return wishes.command(console);
    } catch (const std::exception& error) {
        // A file that was cut short by the signal is no news.
        if (console.stopSignal == 0) Say(console, error.what());
        return ExitCodeOf(console, 1);
    }
}

}  // namespace tidewalk
