// SPDX-License-Identifier: MIT
// Solving: by rules alone, with the trial search, and what one bridge costs.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>

#include "bench/bench_boards.h"
#include "program/headless.h"
#include "solver/connect_islands.h"
#include "solver/neighbours.h"
#include "solver/solve_puzzle.h"

namespace tidewalk::bench {
namespace {

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
            MakeDenseBoard(*game, random, kMaxSide);
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
    MakeDenseBoard(*game, random, kMaxSide);
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
