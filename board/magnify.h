// SPDX-License-Identifier: MIT
// How large the board comes to the screen, and which part of it: one magnification above its geometry in twips.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// The container's inner size in the board's own twips: the more the board is magnified, the fewer of them there is
/// room for.
Surface::Extent RoomOf(const Game& game);

/// Where the board is to fill its room, magnifies it so that all its cells are seen once they are of `cellSize` twips.
/// Nothing is laid out.
void FitMagnification(Game& game, int cellSize);

/// Brings the magnification of a board that has been laid out down to what is reasonable for it.
void BoundMagnification(Game& game);

/// The container has another size: the board is fitted anew if it is to fill its room, and lies in the middle.
void Picture5_Resize(Game& game);

/// The whole board is seen from now on, whatever size the window has.
void mnufit_Click(Game& game);

/// A twip is a twip: 96 pixels show an inch.
void mnuactual_Click(Game& game);

/// Magnifies the board as asked, as far as that is reasonable. What lay at `from` in the container lies at `to` then,
/// both in twips before the change. The window's size does not matter any more until "Fit" is chosen.
void MagnifyBoard(Game& game, double magnification, Point from, Point to);

/// Moves the board in its container by so many twips, but no further than there is more of it to see.
void ScrollBoard(Game& game, double right, double down);

/// Moves the board just so far that the cell shows.
void BringIntoView(Game& game, CellPlace cell);

/// The edges of the container beyond which there are cells.
struct HiddenCells {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;

    bool operator==(const HiddenCells&) const = default;
};
HiddenCells CellsOutOfSight(const Game& game);

/// The magnification of the last run, and for the next one.
void ReadMagnification(Game& game);
void KeepMagnification(Game& game);

}  // namespace tidewalk
