// SPDX-License-Identifier: MIT
// Solving a puzzle.
#pragma once

#include "model/may_go_on.h"
#include "solver/solver_board.h"

namespace tidewalk {

/// When the trial search has come to so many trials it is not the way to the solution. Hardly a puzzle that was made
/// for people needs half as many.
inline constexpr int kTrialsBeforeExactSearch = 20000;

/// How far a solve may go.
struct SolveBounds {
    int limit = 1;       ///< the trial search runs only if this is at least 1
    int mostTrials = 0;  ///< it gives up when it has come to so many trials; 0 for an answer in any case
};

/// How a solve ended.
enum class SolveEnd {
    Solved,
    Failed,      ///< the rules lead to a contradiction, or every choice does, or there was no choice to try
    GivenUp,     ///< the search came to its bounds
    Stopped,     ///< `mayGoOn` said no
    NoSolution,  ///< `FindSolutions` has proved that there is none
};

/// What came of a solve.
struct SolveResult {
    SolveEnd end = SolveEnd::Failed;
    int trials = 0;  ///< the moves that the search tried

    bool Solved() const { return end == SolveEnd::Solved; }
};

/// Solves the puzzle on the board: passes of the rules until they lay nothing more, then a trial search as far as
/// `bounds` let it. Where it has to answer and comes to `kTrialsBeforeExactSearch`, or to more choice points than there
/// may be, `FindSolutions` has the last word: the bridges of the solution that it finds are laid anew. Bridges that lie
/// on the board already are taken away first.
///
/// When it is solved the solution stands in `LinkList`, `ConnectedList` and `CrossGrid`, and `laid` tells every step.
/// Otherwise the board is left as the solver left it. `mayGoOn` is asked before each pass, at each trial and before
/// each choice.
SolveResult SolvePuzzle(SolverBoard& board, const SolveBounds& bounds, const MayGoOn& mayGoOn);

/// How the passes of the rules ended.
enum class Propagation { Settled, Contradiction, Stopped };

/// Repeats passes of the rules until one lays nothing or leads to a contradiction, and asks before each whether to go
/// on.
Propagation Propagate(SolverBoard& board, const MayGoOn& mayGoOn);

}  // namespace tidewalk
