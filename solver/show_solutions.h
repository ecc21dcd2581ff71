// SPDX-License-Identifier: MIT
// The Solutions command.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Looks for the solutions of the puzzle on the board and shows the only one, or two of several side by side. Nothing
/// on the board changes.
void mnusolutions_Click(Game& game);

}  // namespace tidewalk
