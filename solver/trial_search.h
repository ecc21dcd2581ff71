// SPDX-License-Identifier: MIT
// Trial and error where the rules lead no further.
#pragma once

#include "model/may_go_on.h"
#include "solver/solve_puzzle.h"

namespace tidewalk {

/// At most so many choice points are open at a time; a search that would need more fails.
inline constexpr int kMaxBranches = 500;

/// Searches depth first from where the rules stopped: takes the first line of the island status list, lays its first
/// move, lets the rules run on, and takes everything since then back when that led to a contradiction.
///
/// Solved when every island has its bridges. Not solved when there was nothing left to satisfy, when every choice led
/// to a contradiction, when the search came to `mostTrials` (0 for no bound), or when it was stopped.
SolveResult TrialSearch(SolverBoard& board, int mostTrials, const MayGoOn& mayGoOn);

}  // namespace tidewalk
