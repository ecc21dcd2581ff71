// SPDX-License-Identifier: MIT
// Solving a puzzle.
#pragma once

#include "model/may_go_on.h"
#include "solver/solver_board.h"

namespace tidewalk {

/// How far a solve may go.
struct SolveBounds {
    int limit = 1;       ///< the trial search runs only if this is at least 1
    int mostTrials = 0;  ///< the search gives up when it has come to so many trials; 0 for no bound
};

/// What came of a solve.
struct SolveResult {
    bool solved = false;
    int trials = 0;  ///< the moves that the search tried
};

/// Solves the puzzle on the board: passes of the rules until they lay nothing more, then a trial search as far as
/// `bounds` let it. Bridges that lie on the board already are taken away first.
///
/// When it is solved the solution stands in `LinkList`, `ConnectedList` and `CrossGrid`, and `laid` tells every step.
/// Otherwise there is no solution, or the search came to its bounds, or it was stopped; the board is then left as the
/// solver left it. `mayGoOn` is asked before each pass and at each trial.
SolveResult SolvePuzzle(SolverBoard& board, const SolveBounds& bounds, const MayGoOn& mayGoOn);

/// How the passes of the rules ended.
enum class Propagation { Settled, Contradiction, Stopped };

/// Repeats passes of the rules until one lays nothing or leads to a contradiction, and asks before each whether to go
/// on.
Propagation Propagate(SolverBoard& board, const MayGoOn& mayGoOn);

}  // namespace tidewalk
