// SPDX-License-Identifier: MIT
// How long it takes to create a puzzle, plain or to order, to grow a layout alone, and to count a puzzle's solutions.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "generator/create_puzzle.h"
#include "generator/grow.h"
#include "generator/puzzle_order.h"
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

/// Makes candidates until one is what was ordered.
void CreateToOrder(benchmark::State& state, const PuzzleOrder& order) {
    RandomSource random(1);
    SolverBoard board;
    std::int64_t candidates = 0;
    for (auto _ : state) {
        bool fits = false;
        while (!fits) {
            fits = CreateCandidate(board, Square(state), order, random, WithoutEnd).fits;
            ++candidates;
        }
    }
    state.counters["candidates"] =
        benchmark::Counter(static_cast<double>(candidates), benchmark::Counter::kAvgIterations);
}

void CreateOne(benchmark::State& state) {
    CreateToOrder(state, {});
}
BENCHMARK(CreateOne)->Arg(25)->Unit(benchmark::kMillisecond);

void CreateGrade(benchmark::State& state, Grade grade) {
    CreateToOrder(state, {true, grade, {}});
}
BENCHMARK_CAPTURE(CreateGrade, VEasy, Grade::VEasy)->Arg(7)->Arg(25)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CreateGrade, Easy, Grade::Easy)->Arg(7)->Arg(25)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CreateGrade, Hard, Grade::Hard)->Arg(7)->Arg(25)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CreateGrade, VHard, Grade::VHard)->Arg(7)->Arg(25)->Unit(benchmark::kMillisecond);

/// Puzzles as they are published: an island on every third cell, loops, three bridges in ten double.
void CreateCharacter(benchmark::State& state) {
    CreateToOrder(state, {true, {}, {Figures{30, 36}, Figures{.least = 1}, Figures{24, 34}}});
}
BENCHMARK(CreateCharacter)->Arg(10)->Arg(17)->Arg(25)->Unit(benchmark::kMillisecond);

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
