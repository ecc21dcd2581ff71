// SPDX-License-Identifier: MIT
// What grades and hints cost.
#include <benchmark/benchmark.h>

#include "bench/created_puzzles.h"
#include "techniques/grade.h"
#include "techniques/hint.h"

namespace tidewalk::bench {
namespace {

bool HasOneSolution(const CreatedPuzzle& created) {
    return CountSolutions(created.puzzle, 2) == 1;
}

/// The number of solutions and the grade.
void AssessCreated(benchmark::State& state) {
    const auto puzzles = MakePuzzles(static_cast<int>(state.range(0)), HasOneSolution);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(AssessPuzzle(puzzles[next++ % puzzles.size()], WithoutEnd));
}
BENCHMARK(AssessCreated)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

/// A hint on the empty board, its solution looked for as well.
void FirstHint(benchmark::State& state) {
    const auto puzzles = MakePuzzles(static_cast<int>(state.range(0)), HasOneSolution);
    std::size_t next = 0;
    for (auto _ : state) {
        const Archipelago board(puzzles[next++ % puzzles.size()]);
        const auto solutions = FindSolutions(board, 2, WithoutEnd);
        benchmark::DoNotOptimize(FindHint(board, solutions, {}, HintStep::WithBridges, WithoutEnd));
    }
}
BENCHMARK(FirstHint)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tidewalk::bench
