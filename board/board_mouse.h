// SPDX-License-Identifier: MIT
// Playing with the mouse: selecting islands, laying bridges, dragging the board.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// A button goes down: `point` on the board, `cursor` in the coordinates of its container, in twips. The left one on an
/// island may begin a bridge that is drawn to another one; elsewhere it takes hold of the board.
void Picture1_MouseDown(Game& game, MouseButton button, Point point, Point cursor);

/// Nothing comes of the press of the left button any more: a bridge that was being drawn is let go of, a board that was
/// moved stays where it is.
void CallOffPress(Game& game);

/// The pointer moves over the board. With the left button held the board moves along, or, from an island on and beyond
/// the drag distance, the rubber band of a bridge.
void Picture1_MouseMove(Game& game, bool leftHeld, Point point, Point cursor);

/// A button goes up over the board at `point`. `shiftOnly` when Shift and no other modifier is held. A bridge that was
/// drawn is laid where that is an island; no click follows then, nor after a press of the left button that was called
/// off, by Escape say.
void Picture1_MouseUp(Game& game, MouseButton button, bool shiftOnly, Point point);

/// Follows the release of the left button over the board: a click on the cell that the pointer was over last. After a
/// release that made a move itself there is no such cell, and the click does nothing.
void Picture1_Click(Game& game);

/// A click on a cell, with the mouse or a key: selects the island there, joins it with the selected one, or lets go of
/// that where there is no island. While none is selected a click on a bridge goes on with it. While a job runs nothing
/// happens.
void ClickOn(Game& game, CellPlace cell);

/// A button, or a key that stands for it, is released on a cell: with Shift the selected island and the one there get a
/// double bridge, with the right button they lose theirs, or get a mark where there is none. While no island is
/// selected the right button takes away the bridge that lies there. A running job changes nothing.
void ReleaseOn(Game& game, MouseButton button, bool shiftOnly, CellPlace cell);

/// A button goes up beside the board: the selection is dropped.
void Picture5_MouseUp(Game& game);

}  // namespace tidewalk
