// SPDX-License-Identifier: MIT
// Drawing the board, as a whole and in the steps that a move needs.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Clears the board and draws everything: cell outlines, the lines between islands that can be joined, the islands, and
/// the player's bridges or, with `showSolution`, the stored solution in their place.
void RedrawBoard(Game& game, bool showSolution);

/// Draws the board with the stored solution, whether or not lines are to be shown otherwise.
void ShowSolution(Game& game);

/// The outline of every cell, water too.
void DrawCellOutlines(Game& game);

/// The island `id` with its number; nothing where there is water.
void DrawIsland(Game& game, CellNumber id);

/// The thin line between two islands, if lines are to be shown.
void DrawLinkLine(Game& game, CellNumber a, CellNumber b);

/// Two strokes between points of one row or column, the second one `gap` twips to the right of the first or below it.
void DrawDoubleLine(Surface& target, double x1, double y1, double x2, double y2, double gap, Colour colour);

/// All bridges of the player, with the islands over their ends.
void DrawPlacedBridges(Game& game);

/// One or two strokes of a bridge between two islands, with the pen of bridges.
void DrawBridge(Game& game, CellNumber a, CellNumber b, int bridges);

/// Takes the bridge between two islands off the picture, whether it is single or double.
void EraseBridge(Game& game, CellNumber a, CellNumber b);

/// The board's part of the seam through which lower routines lay out and draw.
class DrawnBoard final : public BoardRoutines {
 public:
    void LayoutBoard(Game& game) override;
    void RedrawBoard(Game& game, bool showSolution) override;
    void ShowSolution(Game& game) override;
};

}  // namespace tidewalk
