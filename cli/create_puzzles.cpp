// SPDX-License-Identifier: MIT
// The command "create".
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <iomanip>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/ordered_work.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "generator/character.h"
#include "generator/grid_size.h"
#include "generator/puzzle_order.h"
#include "model/file_error.h"
#include "model/numbers.h"
#include "model/puzzle_record.h"

namespace tidewalk {

namespace {

/// A seed of its own for every try at every puzzle, so that it does not matter who makes which. What is drawn once for
/// a puzzle is drawn with that of try 0.
std::uint64_t SeedOfTry(std::uint64_t base, int number, int attempt) {
    constexpr int kWordBits = 32;
    std::seed_seq sequence{static_cast<std::uint32_t>(base >> kWordBits), static_cast<std::uint32_t>(base),
                           static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(attempt)};
    std::array<std::uint32_t, 2> words{};
    sequence.generate(words.begin(), words.end());
    return (static_cast<std::uint64_t>(words[0]) << kWordBits) | words[1];
}

std::uint64_t SeedFromClock() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

/// The size that the argument asks for; a side of 0 where it is none.
WantedSize SizeFromArgument(const std::string& text) {
    const std::string size = LowerCase(Trim(text));
    if (size == "random") return {true, {}};
    const bool isSize = !size.empty() && size.find_first_not_of("0123456789x") == std::string::npos &&
                        std::count(size.begin(), size.end(), 'x') <= 1;
    return isSize ? ParseGridSize(size) : WantedSize{};
}

/// The largest of the sizes that are drawn.
constexpr BoardSize kLargestDrawn{kMaxSide - 1, kMaxSide - 1};

/// Whether such puzzles can be ordered of the size, or of some size if it is to be random.
bool CanBeOrderedOf(const WantedSize& wanted, const Character& character) {
    if (!wanted.random) return CanBeOrdered(character, wanted.size);
    for (int rows = kMinSide; rows <= kLargestDrawn.rows; ++rows) {
        for (int cols = kMinSide; cols <= kLargestDrawn.cols; ++cols) {
            if (CanBeOrdered(character, {rows, cols})) return true;
        }
    }
    return false;
}

/// A size that such puzzles can be ordered of, drawn if it is to be random. A size that is not one of them is drawn
/// again; those that are come equally often, however seldom candidates of them fit.
BoardSize OrderedSize(const WantedSize& wanted, const Character& character, RandomSource& random) {
    BoardSize size = SizeOf(wanted, random);
    while (wanted.random && !CanBeOrdered(character, size))
        size = SizeOf(wanted, random);
    return size;
}

/// The islands as a figure in every hundred cells.
std::string DensityText(int islands, int cells) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << 100.0 * islands / cells;
    return text.str();
}

/// Why such puzzles cannot be ordered: what can be instead.
std::string WhyNotOrdered(const WantedSize& wanted, const Character& character) {
    const BoardSize size = wanted.random ? kLargestDrawn : wanted.size;
    const std::string sized = SizeText(size);
    const std::string puzzles = (wanted.random ? "random sizes, up to " + sized + ", have " : sized + " has ");
    if (!CanBeOrderedOf(wanted, {{}, character.loops, {}})) {
        return "--loops: " + puzzles + "0 to " + std::to_string(MostLoops(size)) + " loops";
    }
    if (CanBeOrderedOf(wanted, {character.density, {}, {}})) return "no size has that --density and that many --loops";
    const int cells = size.rows * size.cols;
    const Figures islands = IslandsToOrder(size);
    return "--density: " + puzzles + std::to_string(islands.least) + " to " + std::to_string(islands.most) +
           " islands, " + DensityText(islands.least, cells) + " to " + DensityText(islands.most, cells) +
           " in every 100 cells, and no number of them is within what was asked for";
}

/// Makes the puzzles of one run.
class PuzzleMaker {
 public:
    PuzzleMaker(Console& console, const CreateOptions& options, const WantedSize& size)
        : console_(console),
          options_(options),
          size_(size),
          last_(options.first + options.count - 1),
          seed_(options.seed.value_or(SeedFromClock())),
          mayGoOn_(UntilStopSignal(console)),
          output_(console, options.out),
          progress_(console, options.out == kStandard) {}

    /// Makes them all and appends them to their file. Returns how many of them did not come about. Throws FileError
    /// when one cannot be written; those before it are.
    int Run() {
        std::vector<SolverBoard> boards(static_cast<std::size_t>(options_.jobs));
        WorkSteps<int, Made> steps;
        steps.next = [this, next = options_.first](int& number) mutable {
            if (next > last_ || !mayGoOn_()) return false;
            number = next++;
            return true;
        };
        steps.work = [&](int worker, int& number) {
            return Made{number, MakeRecord(boards[static_cast<std::size_t>(worker)], number)};
        };
        steps.take = [this](Made& made) { return Take(made); };
        steps.idle = [this] { ShowProgress(); };
        OrderedWork<int, Made>(std::move(steps)).Run(options_.jobs);
        progress_.Hide();
        output_.Finish();
        return failures_;
    }

    /// True when every puzzle that was wanted is written.
    bool IsDone() const { return written_ == options_.count; }

    /// Tells what was made.
    void Report() const {
        const std::string text = std::to_string(written_) + " of " + std::to_string(options_.count) +
                                 " puzzles written to " + options_.out + ", " + std::to_string(tried_) +
                                 " tried, seed " + std::to_string(seed_) +
                                 (options_.first == 1 ? "" : ", from its puzzle " + std::to_string(options_.first));
        ReportOnce(console_, options_.json, text,
                   {{"file", options_.out},
                    {"first", options_.first},
                    {"wanted", options_.count},
                    {"written", written_},
                    {"tried", tried_.load()},
                    {"seed", seed_}});
    }

 private:
    struct Made {
        int number = 0;
        std::string record;  ///< "" for none that was as ordered
    };

    /// Makes puzzles until one is as ordered. Any thread may ask for one.
    std::string MakeRecord(SolverBoard& board, int number) {
        RandomSource sizes(SeedOfTry(seed_, number, 0));
        const BoardSize size = OrderedSize(size_, options_.order.character, sizes);
        for (int attempt = 1; attempt <= kMostCandidates && mayGoOn_(); ++attempt) {
            RandomSource random(SeedOfTry(seed_, number, attempt));
            const Candidate candidate = CreateCandidate(board, size, options_.order, random, mayGoOn_);
            if (!mayGoOn_()) break;
            ++tried_;
            if (candidate.fits) return PuzzleRecord(candidate.created.puzzle);
        }
        return "";
    }

    /// Writes what was made; false when the run is to end.
    bool Take(const Made& made) {
        if (console_.Stopped()) return false;
        if (made.record.empty()) {
            ++failures_;
            progress_.Hide();
            Say(console_, "puzzle " + std::to_string(made.number) + ": none came out right in " +
                              std::to_string(kMostCandidates) + " tries");
        } else {
            output_.Add(made.record);
            ++written_;
        }
        ShowProgress();
        return true;
    }

    void ShowProgress() {
        progress_.Show(static_cast<double>(written_) / options_.count, std::to_string(written_) + " of " +
                                                                           std::to_string(options_.count) + " made, " +
                                                                           std::to_string(tried_) + " tried");
    }

    Console& console_;
    const CreateOptions& options_;
    WantedSize size_;
    int last_;  ///< the number of the last puzzle of the run that is made
    std::uint64_t seed_;
    MayGoOn mayGoOn_;
    AppendedRecords output_;
    Progress progress_;
    std::atomic<std::int64_t> tried_ = 0;
    int written_ = 0;
    int failures_ = 0;
};

}  // namespace

int CreatePuzzles(Console& console, const CreateOptions& options) {
    const WantedSize size = SizeFromArgument(options.size);
    if (!size.random && !IsCreatableSize(size.size)) {
        Say(console, "a puzzle has 7 to 25 rows and columns, not \"" + options.size + "\"");
        return kWrongUsage;
    }
    if (!CanBeOrderedOf(size, options.order.character)) {
        Say(console, WhyNotOrdered(size, options.order.character));
        return kWrongUsage;
    }
    PuzzleMaker maker(console, options, size);
    int failures = 0;
    try {
        failures = maker.Run();
    } catch (const FileError& error) {
        Say(console, error.what());
        failures = 1;
    }
    if (options.out != kStandard) maker.Report();
    // What is written is written, whatever signal came meanwhile.
    return maker.IsDone() && failures == 0 ? kDone : ExitCodeOf(console, failures);
}

}  // namespace tidewalk
