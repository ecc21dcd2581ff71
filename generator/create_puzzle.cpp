// SPDX-License-Identifier: MIT
#include "generator/create_puzzle.h"

#include <algorithm>

#include "generator/grow.h"
#include "model/numbers.h"
#include "solver/solve_puzzle.h"

namespace tidewalk {

namespace {

constexpr int kAttempts = 5;

/// The trial search gives up a layout after so many trials; that it will ever end is not certain otherwise.
constexpr int kTrialLimit = 10000;

/// How far the solver may go with a board of so many cells.
SolveBounds BoundsFor(int cellCount) {
    constexpr double kCellsPerAllowance = 10;
    return {RoundHalfEven(cellCount / kCellsPerAllowance), kTrialLimit};
}

/// Grows a layout from one island.
Puzzle GrowLayout(BoardSize size, RandomSource& random) {
    constexpr float kFillTarget = 100;
    GrowingLayout layout(size);
    // The seed is the cell whose id was drawn among the numbers of the rows, wherever that id lies.
    layout.GrowFromCell = std::min(random.Draw(size.rows) + 1, size.rows);
    PlaceIsland(layout, layout.GrowFromCell);
    for (int count = 0; count != -1;)
        GrowStep(layout, random, count, kFillTarget);
    return GrownPuzzle(layout);
}

}  // namespace

CreatedPuzzle CreatePuzzle(SolverBoard& board, BoardSize size, RandomSource& random, const MayGoOn& mayGoOn) {
    CreatedPuzzle created;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        const bool stopped = !mayGoOn();
        // A layout is grown even if the first look finds the job cancelled: a batch records one for every puzzle.
        if (stopped && attempt > 1) break;
        created.puzzle = GrowLayout(size, random);
        if (stopped) break;
        board.Reset(created.puzzle);
        const SolveResult result = SolvePuzzle(board, BoundsFor(created.puzzle.CellCount()), mayGoOn);
        created.trials = result.trials;
        if (!result.Solved()) continue;
        created.solved = true;
        created.puzzle = PuzzleOf(board);
        break;
    }
    return created;
}

}  // namespace tidewalk
