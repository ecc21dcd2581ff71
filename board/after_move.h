// SPDX-License-Identifier: MIT
// What follows every change of the player's bridges and marks.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Draws the board, lets the status line forget what was said of the position before, and notices when the puzzle is
/// solved.
void AfterMove(Game& game);

}  // namespace tidewalk
