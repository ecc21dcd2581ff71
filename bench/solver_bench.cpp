// SPDX-License-Identifier: MIT
// Solving: by rules alone, with the trial search, and what one bridge costs.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <vector>

#include "generator/create_puzzle.h"
#include "program/headless.h"
#include "solver/connect_islands.h"
#include "solver/neighbours.h"
#include "solver/solve_puzzle.h"
#include "tests/support/plain_solver.h"
#include "tests/support/random_boards.h"

namespace tidewalk::bench {
namespace {

/// About every third cell of these boards holds an island, so that a solver has much to try.
constexpr int kSpacing = 3;

/// Created puzzles of one size that the rules alone solve, or that need trials.
std::vector<Grid<int>> MakePuzzles(HeadlessGame& game, int side, bool searched) {
    constexpr std::size_t kPuzzles = 40;
    std::vector<Grid<int>> puzzles;
    game.random.UseSeed(static_cast<std::uint64_t>(side));
    game.Rows = game.Cols = side;
    while (puzzles.size() < kPuzzles) {
        int grade = 0;
        int failed = 0;
        CreatePuzzle(game, grade, failed);
        if (failed == 0 && (grade > 0) == searched) puzzles.push_back(game.IslandGrid);
    }
    return puzzles;
}

void SolveCreated(benchmark::State& state, bool searched) {
    const auto game = std::make_unique<HeadlessGame>();
    const auto puzzles = MakePuzzles(*game, static_cast<int>(state.range(0)), searched);
    std::size_t next = 0;
    for (auto _ : state) {
        game->GivenGrid = puzzles[next++ % puzzles.size()];
        int trials = 0;
        if (SolvePuzzle(*game, game->CellCount, trials) != 0) state.SkipWithError("not solved");
    }
}

void SolveCreatedPlainly(benchmark::State& state, bool searched) {
    const auto game = std::make_unique<HeadlessGame>();
    const int side = static_cast<int>(state.range(0));
    const auto puzzles = MakePuzzles(*game, side, searched);
    std::size_t next = 0;
    for (auto _ : state) {
        test::PlainSolver plain(puzzles[next++ % puzzles.size()], side, side);
        if (!plain.Solve(1)) state.SkipWithError("not solved");
    }
}

BENCHMARK_CAPTURE(SolveCreated, Rules, false)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SolveCreated, Search, true)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SolveCreatedPlainly, Rules, false)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SolveCreatedPlainly, Search, true)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

/// Trials a second on crowded 25x25 boards that the search does not finish.
void TrialSearchDense(benchmark::State& state) {
    const auto game = std::make_unique<HeadlessGame>();
    constexpr int kTrials = 3000;
    std::int64_t total = 0;
    std::mt19937 random(7);
    for (auto _ : state) {
        state.PauseTiming();
        int trials = 0;
        do {
            test::MakeRandomBoard(*game, random, kMaxSide, kMaxSide, kSpacing, false);
            game->TrialLimit = 100;
            SolvePuzzle(*game, 1, trials);
        } while (trials < 100);
        state.ResumeTiming();
        game->TrialLimit = kTrials;
        SolvePuzzle(*game, 1, trials);
        total += trials;
    }
    state.counters["trials/s"] = benchmark::Counter(static_cast<double>(total), benchmark::Counter::kIsRate);
}
BENCHMARK(TrialSearchDense)->Unit(benchmark::kMillisecond)->Iterations(20);

/// One bridge after the other on a crowded 25x25 board, with the refresh after each.
void ConnectIslandsOnFullBoard(benchmark::State& state) {
    const auto game = std::make_unique<HeadlessGame>();
    std::mt19937 random(7);
    test::MakeRandomBoard(*game, random, kMaxSide, kMaxSide, kSpacing, false);
    std::int64_t laid = 0;
    for (auto _ : state) {
        RestoreIslands(*game);
        game->CrossGrid.Fill(Cross::Free);
        BuildNeighbourLists(*game);
        for (int i = 1; i <= game->LinkCount(); i += 2) {
            const Link link = game->LinkList[i];
            ConnectIslands(*game, "bench", link.first, link.second, 1);
            ++laid;
        }
        TakeBackBridges(*game, 0);
    }
    state.counters["bridges/s"] = benchmark::Counter(static_cast<double>(laid), benchmark::Counter::kIsRate);
}
BENCHMARK(ConnectIslandsOnFullBoard);

}  // namespace
}  // namespace tidewalk::bench
