// SPDX-License-Identifier: MIT
// Groups of islands that can never be joined to the others.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Looks for a group of joined islands none of which has an open neighbour left, unless the group is the whole puzzle.
/// Returns an island of such a group, or 0. The group of `island` is looked at first; 0 for no preference.
CellNumber CheckIsolation(const Game& game, CellNumber island);

}  // namespace tidewalk
