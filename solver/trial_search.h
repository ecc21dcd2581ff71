// SPDX-License-Identifier: MIT
// Trial and error where the rules lead no further.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// At most so many choice points are open at a time; a search that would need more fails.
inline constexpr int kMaxBranches = 500;

/// Searches depth first from where the rules stopped: takes the first line of the island status list, lays its first
/// move, lets the rules run on, and takes everything since then back when that led to a contradiction.
///
/// Returns 0 when every island has its bridges. Returns 1 when there was nothing left to satisfy, when every choice led
/// to a contradiction, when the bound of trials was reached, or when the job was cancelled. `trials` becomes the number
/// of moves tried.
int TrialSearch(Game& game, int& trials);

}  // namespace tidewalk
