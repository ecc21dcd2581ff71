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

/// Follows the release of the left button over the board: a click on the cell that the pointer was over last, or that
/// the keyboard named. After a release that made a move itself there is no such cell, and the click does nothing.
void Picture1_Click(Game& game);

/// A button goes up beside the board: the selection is dropped.
void Picture5_MouseUp(Game& game);

}  // namespace tidewalk
