// SPDX-License-Identifier: MIT
// What grades and hints cost.
#include <benchmark/benchmark.h>

#include <vector>

#include "generator/create_puzzle.h"
#include "techniques/grade.h"
#include "techniques/hint.h"

namespace tidewalk::bench {
namespace {

/// Created puzzles of one size with exactly one solution.
std::vector<Puzzle> MakePuzzles(int side) {
    constexpr std::size_t kPuzzles = 40;
    std::vector<Puzzle> puzzles;
    RandomSource random(static_cast<std::uint64_t>(side));
    SolverBoard board;
    while (puzzles.size() < kPuzzles) {
        const CreatedPuzzle created = CreatePuzzle(board, {side, side}, random, WithoutEnd);
        if (created.solved && CountSolutions(created.puzzle, 2) == 1) puzzles.push_back(created.puzzle);
    }
    return puzzles;
}

/// The number of solutions and the grade.
void AssessCreated(benchmark::State& state) {
    const auto puzzles = MakePuzzles(static_cast<int>(state.range(0)));
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(AssessPuzzle(puzzles[next++ % puzzles.size()], WithoutEnd));
}
BENCHMARK(AssessCreated)->Arg(7)->Arg(15)->Arg(25)->Unit(benchmark::kMicrosecond);

/// A hint on the empty board, its solution looked for as well.
void FirstHint(benchmark::State& state) {
    const auto puzzles = MakePuzzles(static_cast<int>(state.range(0)));
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
