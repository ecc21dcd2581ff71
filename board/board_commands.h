// SPDX-License-Identifier: MIT
// The commands on the board: zoom, undo, check, the view of the solution, reset.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// The zoom buttons: index 0 "Zoom out", 1 "Zoom in", 2 "Reset zoom". Nothing happens while the board is hidden.
void cmdzoom_Click(Game& game, int index);

/// Whether that button would change what is seen. Where the cells are at their limit it still brings a board that was
/// moved back into the middle, and only one that lies there stays as it is.
bool ZoomWouldShow(const Game& game, int index);

/// Takes the last move back, or makes the one again that was taken back last; nothing happens when there is none.
void cmdundo_Click(Game& game);
void cmdredo_Click(Game& game);

/// Takes back moves, or makes them again, until `moment` moves are made. A moment that there is not changes nothing.
void GoToMoment(Game& game, int moment);

/// Marks two islands on the board, at which the list of moves points; zeros for none.
void PointAtPair(Game& game, CellNumber a, CellNumber b);

/// Remembers this moment, and goes back to the newest one remembered before this one. Moves taken back on the way can
/// be made again.
void mnucheckpoint_Click(Game& game);
void mnubacktocheckpoint_Click(Game& game);

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
