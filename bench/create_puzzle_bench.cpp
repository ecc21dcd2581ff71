// SPDX-License-Identifier: MIT
// How long it takes to create a puzzle, to grow a layout alone, and to count a puzzle's solutions.
#include <benchmark/benchmark.h>

#include "generator/create_puzzle.h"
#include "generator/grow.h"
#include "solver/count_solutions.h"

namespace tidewalk::bench {
namespace {

BoardSize Square(const benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    return {side, side};
}

void Create(benchmark::State& state) {
    RandomSource random(1);
    SolverBoard board;
    int failures = 0;
    for (auto _ : state)
        failures += CreatePuzzle(board, Square(state), random, WithoutEnd).solved ? 0 : 1;
    state.counters["failed"] = failures;
}
BENCHMARK(Create)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

void Grow(benchmark::State& state) {
    RandomSource random(1);
    for (auto _ : state) {
        GrowingLayout layout(Square(state));
        layout.GrowFromCell = 1;
        PlaceIsland(layout, 1);
        for (int count = 0; count != -1;)
            GrowStep(layout, random, count, 100);
    }
}
BENCHMARK(Grow)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

void Count(benchmark::State& state) {
    RandomSource random(1);
    SolverBoard board;
    int undecided = 0;
    int unique = 0;
    for (auto _ : state) {
        state.PauseTiming();
        CreatedPuzzle created;
        while (!created.solved)
            created = CreatePuzzle(board, Square(state), random, WithoutEnd);
        state.ResumeTiming();
        const auto count = CountSolutions(created.puzzle, 2);
        undecided += !count.has_value();
        unique += count == 1;
    }
    state.counters["undecided"] = undecided;
    state.counters["unique"] = benchmark::Counter(unique, benchmark::Counter::kAvgIterations);
}
BENCHMARK(Count)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tidewalk::bench
