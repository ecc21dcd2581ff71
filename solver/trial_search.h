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
/// `Solved` when every island has its bridges. `Failed` when there was nothing left to satisfy or every choice led to a
/// contradiction, `GivenUp` when the search came to `mostTrials`, at least 1, or to more choice points than there may
/// be.
SolveResult TrialSearch(SolverBoard& board, int mostTrials, const MayGoOn& mayGoOn);

}  // namespace tidewalk
