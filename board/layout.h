// SPDX-License-Identifier: MIT
// The board's geometry: cell size, margins, the place of every island, zoom. All lengths are twips.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Prepares an empty board of the current `Rows` by `Cols`, fits the cell size to the container and lays it out. The
/// size that "Reset zoom" goes back to stays that of the last loaded puzzle.
void LayoutNewBoard(Game& game);

/// Lays the board out for the current `CellSize`, which it brings into 200..700.
void LayoutBoard(Game& game);

/// Centres the board in its container, as after every layout.
void CentreBoard(Game& game);

/// The zoom buttons: index 0 "Zoom out", 1 "Zoom in", 2 "Reset zoom". Nothing happens while the board is hidden.
void cmdzoom_Click(Game& game, int index);

}  // namespace tidewalk
