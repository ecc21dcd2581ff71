// SPDX-License-Identifier: MIT
// The command "create".
#include <array>
#include <atomic>
#include <chrono>
#include <random>
#include <utility>

#include "cli/commands.h"
#include "cli/ordered_work.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "cli/workers.h"
#include "generator/create_puzzle.h"
#include "generator/new_puzzle.h"
#include "model/numbers.h"
#include "model/write_puzzle_record.h"
#include "solver/count_solutions.h"
#include "solver/valid_solution.h"

namespace tidewalk {

namespace {

/// So many puzzles are made in search of one that is good enough.
constexpr int kMostTries = 10000;

struct Created {
    int number = 0;
    std::string record;  ///< "" for none that was good enough
};

/// A seed of its own for every try at every puzzle, so that it does not matter which thread makes which.
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

bool HasOneSolution(const Game& game) {
    return CountSolutions(game.IslandGrid, game.Rows, game.Cols, 2) == 1;
}

/// Makes puzzles until one is good enough.
Created CreateOne(Game& game, const WantedSize& size, int number, std::uint64_t base, bool unique,
                  std::atomic<long long>& tried) {
    Created created;
    created.number = number;
    for (int attempt = 1; attempt <= kMostTries && !game.ending; ++attempt) {
        const Job job(game);
        game.random.UseSeed(SeedOfTry(base, number, attempt));
        game.Rows = size.random ? DrawRandomSide(game) : size.rows;
        game.Cols = size.random ? DrawRandomSide(game) : size.cols;
        int grade = 0;
        int failed = 0;
        CreatePuzzle(game, grade, failed);
        if (game.ending) break;
        ++tried;
        if (failed != 0 || !IsValidSolution(game) || (unique && !HasOneSolution(game))) continue;
        created.record = PuzzleRecord(game);
        break;
    }
    return created;
}

}  // namespace

int CreatePuzzles(Console& console, const CreateOptions& options) {
    const WantedSize size = ParseGridSize(LowerCase(Trim(options.size)) == "random" ? "" : options.size);
    if (!size.random && !IsCreatableSize(size.rows, size.cols)) {
        Say(console, "a puzzle has 7 to 25 rows and columns, not " + options.size);
        return kWrongUsage;
    }
    const std::uint64_t seed = options.seed.value_or(SeedFromClock());
    AppendedRecords output(console, options.out);
    WorkerGames games(console, options.jobs);
    Progress progress(console, options.out == kStandard);
    std::atomic<long long> tried = 0;
    int next = 0;
    int written = 0;
    int failures = 0;
    const auto showProgress = [&] {
        progress.Show(static_cast<double>(written) / options.count, std::to_string(written) + " of " +
                                                                        std::to_string(options.count) + " made, " +
                                                                        std::to_string(tried) + " tried");
    };
    WorkSteps<int, Created> steps;
    steps.next = [&](int& number) {
        number = ++next;
        return number <= options.count && console.stopSignal == 0;
    };
    steps.work = [&](int worker, int& number) {
        return CreateOne(games[worker], size, number, seed, options.unique, tried);
    };
    steps.take = [&](Created& created) {
        if (console.Stopped()) return false;
        if (created.record.empty()) {
            ++failures;
            progress.Hide();
            Say(console, "puzzle " + std::to_string(created.number) + ": none came out right in " +
                             std::to_string(kMostTries) + " tries");
        } else {
            output.Add(created.record);
            ++written;
        }
        showProgress();
        return true;
    };
    steps.idle = showProgress;
    OrderedWork<int, Created>(std::move(steps)).Run(options.jobs);
    progress.Hide();
    const std::string text = std::to_string(written) + " of " + std::to_string(options.count) + " puzzles written to " +
                             options.out + ", " + std::to_string(tried) + " tried, seed " + std::to_string(seed);
    if (options.out != kStandard) {
        ReportOnce(console, options.json, text,
                   {{"file", options.out},
                    {"wanted", options.count},
                    {"written", written},
                    {"tried", tried.load()},
                    {"seed", seed}});
    }
    return ExitCodeOf(console, failures);
}

}  // namespace tidewalk
