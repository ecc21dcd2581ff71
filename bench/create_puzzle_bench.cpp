// SPDX-License-Identifier: MIT
// How long it takes to create a puzzle, to grow a layout alone, and to count a puzzle's solutions.
#include <benchmark/benchmark.h>

#include <memory>

#include "generator/create_puzzle.h"
#include "generator/grow.h"
#include "model/job.h"
#include "program/headless.h"
#include "solver/count_solutions.h"

namespace tidewalk {
namespace {

std::unique_ptr<HeadlessGame> GameOfSide(benchmark::State& state) {
    auto game = std::make_unique<HeadlessGame>();
    game->random.UseSeed(1);
    game->Rows = game->Cols = static_cast<int>(state.range(0));
    return game;
}

void Create(benchmark::State& state) {
    const auto game = GameOfSide(state);
    const Job job(*game);
    int failures = 0;
    for (auto step : state) {
        int grade = 0;
        int failed = 0;
        CreatePuzzle(*game, grade, failed);
        failures += failed;
    }
    state.counters["failed"] = failures;
}
BENCHMARK(Create)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

void Grow(benchmark::State& state) {
    const auto game = GameOfSide(state);
    NumberCells(*game);
    for (auto step : state) {
        game->IslandGrid.FillBoard(kOpenWater);
        game->CrossGrid.Fill(Cross::Free);
        game->BridgeTotals.Fill(0);
        game->liveIslands.Clear();
        game->GrowFromCell = 1;
        PlaceIsland(*game, 1);
        for (int count = 0; count != -1;)
            GrowStep(*game, count, 100);
    }
}
BENCHMARK(Grow)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

void Count(benchmark::State& state) {
    const auto game = GameOfSide(state);
    const Job job(*game);
    int undecided = 0;
    int unique = 0;
    for (auto step : state) {
        state.PauseTiming();
        int grade = 0;
        int failed = 1;
        while (failed != 0)
            CreatePuzzle(*game, grade, failed);
        state.ResumeTiming();
        const auto count = CountSolutions(game->IslandGrid, game->Rows, game->Cols, 2);
        undecided += !count.has_value();
        unique += count == 1;
    }
    state.counters["undecided"] = undecided;
    state.counters["unique"] = benchmark::Counter(unique, benchmark::Counter::kAvgIterations);
}
BENCHMARK(Count)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tidewalk
