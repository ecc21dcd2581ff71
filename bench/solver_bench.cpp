// SPDX-License-Identifier: MIT
// Solving: by rules alone, with the trial search, and what one bridge costs.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "bench/created_puzzles.h"
#include "solver/connect_islands.h"
#include "solver/count_solutions.h"
#include "solver/neighbours.h"
#include "solver/solve_puzzle.h"
#include "tests/support/random_boards.h"

namespace tidewalk::bench {
namespace {

/// About every third cell of these boards holds an island, so that a solver has much to try.
constexpr int kSpacing = 3;

void SolveCreated(benchmark::State& state, bool searched) {
    const auto puzzles = MakePuzzles(static_cast<int>(state.range(0)), [searched](const CreatedPuzzle& created) {
        return (created.trials > 0) == searched;
    });
    SolverBoard board;
    std::size_t next = 0;
    for (auto _ : state) {
        board.Reset(puzzles[next++ % puzzles.size()]);
        if (!SolvePuzzle(board, {}, WithoutEnd).Solved()) state.SkipWithError("not solved");
    }
}
BENCHMARK_CAPTURE(SolveCreated, Rules, false)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SolveCreated, Search, true)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

/// Trials a second on crowded 25x25 boards that the search does not finish.
void TrialSearchDense(benchmark::State& state) {
    constexpr int kTrials = 3000;
    constexpr int kAtLeast = 100;
    SolverBoard board;
    std::int64_t total = 0;
    std::mt19937 random(7);
    for (auto _ : state) {
        state.PauseTiming();
        do {
            board.Reset(test::MakeRandomPuzzle(random, {kMaxSide, kMaxSide}, kSpacing, false));
        } while (SolvePuzzle(board, {1, kAtLeast}, WithoutEnd).trials < kAtLeast);
        state.ResumeTiming();
        total += SolvePuzzle(board, {1, kTrials}, WithoutEnd).trials;
    }
    state.counters["trials/s"] = benchmark::Counter(static_cast<double>(total), benchmark::Counter::kIsRate);
}
BENCHMARK(TrialSearchDense)->Unit(benchmark::kMillisecond)->Iterations(20);

/// Whether there is exactly one solution, on crowded boards: with every other one a number is wrong.
void CountCrowded(benchmark::State& state) {
    constexpr int kBoards = 100;
    const int side = static_cast<int>(state.range(0));
    std::mt19937 random(7);
    std::vector<Archipelago> boards;
    for (int i = 0; i < kBoards; ++i)
        boards.emplace_back(test::MakeRandomPuzzle(random, {side, side}, kSpacing, i % 2 == 0));
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(FindSolutions(boards[next++ % boards.size()], 2, WithoutEnd));
}
BENCHMARK(CountCrowded)->Arg(12)->Arg(25)->Unit(benchmark::kMicrosecond);

/// One bridge after the other on a crowded 25x25 board, with the refresh after each.
void ConnectIslandsOnFullBoard(benchmark::State& state) {
    std::mt19937 random(7);
    const Puzzle puzzle = test::MakeRandomPuzzle(random, {kMaxSide, kMaxSide}, kSpacing, false);
    SolverBoard board;
    std::int64_t laid = 0;
    for (auto _ : state) {
        board.Reset(puzzle);
        for (int i = 1; i <= board.LinkList.Count(); i += 2) {
            const Link link = board.LinkList[i];
            ConnectIslands(board, Rule::Trial, link.first, link.second, 1);
            ++laid;
        }
        TakeBackBridges(board, 0);
    }
    state.counters["bridges/s"] = benchmark::Counter(static_cast<double>(laid), benchmark::Counter::kIsRate);
}
BENCHMARK(ConnectIslandsOnFullBoard);

}  // namespace
}  // namespace tidewalk::bench
