// SPDX-License-Identifier: MIT
// Solving the current puzzle.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Solves the puzzle whose numbers `GivenGrid` holds: passes of the rules until they lay nothing more, then a trial
/// search if `limit` is at least 1. `trials` becomes the number of moves tried.
///
/// Returns 0 when solved: the solution stands in `LinkList`, `ConnectedList` and `CrossGrid`, and `IslandGrid` holds
/// the numbers again, with -1 for water. Returns 1 when there is no solution, the search was not allowed or came to its
/// bound, or the job was cancelled; `IslandGrid` is then left as the solver left it.
int SolvePuzzle(Game& game, int limit, int& trials);

enum class Propagation { Settled, Contradiction, Cancelled };

/// Repeats passes of the rules until one lays nothing or leads to a contradiction, with a look at the cancel flag
/// before each.
Propagation Propagate(Game& game);

/// Puts the numbers of `GivenGrid` into `IslandGrid`, -1 wherever there is no island.
void RestoreIslands(Game& game);

}  // namespace tidewalk
