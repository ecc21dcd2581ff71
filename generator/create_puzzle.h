// SPDX-License-Identifier: MIT
// Making one random puzzle.
#pragma once

#include "model/may_go_on.h"
#include "model/puzzle.h"
#include "model/random_source.h"
#include "solver/solver_board.h"

namespace tidewalk {

/// What came of making a puzzle.
struct CreatedPuzzle {
    bool solved = false;  ///< the solver has solved it
    int trials = 0;       ///< what the solver needed
    Puzzle puzzle;        ///< with its solution; when it was not solved, the numbers of the last layout
};

/// Makes a puzzle of this size, each side 7..25, and solves it on `board`, whatever that held before.
///
/// Up to five layouts are grown until the solver solves one. When `mayGoOn` says no, there is no further one; the first
/// is grown in any case.
CreatedPuzzle CreatePuzzle(SolverBoard& board, BoardSize size, RandomSource& random, const MayGoOn& mayGoOn);

}  // namespace tidewalk
