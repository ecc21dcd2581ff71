// SPDX-License-Identifier: MIT
// Playing with the mouse: selecting islands, laying bridges, dragging the board.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// A button goes down; `cursor` is the pointer in the coordinates of the board's container, in twips.
void Picture1_MouseDown(Game& game, MouseButton button, Point cursor);

/// The pointer moves over the board: `point` on the board, `cursor` in its container. With the left button held the
/// board moves along.
void Picture1_MouseMove(Game& game, bool leftHeld, Point point, Point cursor);

/// A button goes up over the board at `point`. `shiftOnly` when Shift and no other modifier is held.
void Picture1_MouseUp(Game& game, MouseButton button, bool shiftOnly, Point point);

/// Follows the release of the left button over the board: a click on the cell that the pointer was over last. After a
/// release that made a move itself there is no such cell, and the click does nothing.
void Picture1_Click(Game& game);

/// A click on a cell, with the mouse or a key: selects the island there, joins it with the selected one, or lets go of
/// that where there is no island. While a job runs nothing happens.
void ClickOn(Game& game, CellPlace cell);

/// A button, or a key that stands for it, is released on a cell: with Shift the selected island and the one there get a
/// double bridge, with the right button they lose theirs. No island there, and a running job, change nothing.
void ReleaseOn(Game& game, MouseButton button, bool shiftOnly, CellPlace cell);

/// A button goes up beside the board: the selection is dropped.
void Picture5_MouseUp(Game& game);

}  // namespace tidewalk
