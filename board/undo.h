// SPDX-License-Identifier: MIT
// Undo, reset and the view of the solution.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Takes the last move back; nothing happens when there is none.
void cmdundo_Click(Game& game);

/// Shows the stored solution for as long as the button is held.
void cmdviewcol_Press(Game& game);
void cmdviewcol_Release(Game& game);

/// Asks, and starts the current puzzle again.
void mnupuzreset_Click(Game& game);

}  // namespace tidewalk
