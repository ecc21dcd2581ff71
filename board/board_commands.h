// SPDX-License-Identifier: MIT
// The commands on the board: zoom, undo, check, the view of the solution, reset.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// The zoom buttons: index 0 "Zoom out", 1 "Zoom in", 2 "Reset zoom". Nothing happens while the board is hidden.
void cmdzoom_Click(Game& game, int index);

/// Takes the last move back; nothing happens when there is none.
void cmdundo_Click(Game& game);

/// The check button: "All Done!", or the first wrong island framed for a second.
void cmdverify_Click(Game& game);

/// The tick of the timer that takes the frame away.
void Timer1_Timer(Game& game);

/// Shows the stored solution for as long as the button is held.
void cmdviewcol_Press(Game& game);
void cmdviewcol_Release(Game& game);

/// Asks, and starts the current puzzle again.
void mnupuzreset_Click(Game& game);

}  // namespace tidewalk
