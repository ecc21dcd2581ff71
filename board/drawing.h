// SPDX-License-Identifier: MIT
// Drawing the board.
#pragma once

#include "board/board.h"
#include "drawing/surface.h"
#include "options/options.h"

namespace tidewalk {

/// Draws a board on a surface in the player's colours, in twips from the board's corner.
class BoardDrawing {
 public:
    /// What is given has to live as long.
    BoardDrawing(Surface& picture, const Board& board, const Options& options)
        : picture_(picture), board_(board), options_(options) {}

    /// Clears the picture and draws everything: cell outlines, the lines between islands that can be joined, the
    /// islands, and the player's bridges and marks or, with `showSolution`, the stored solution in their place.
    void RedrawBoard(bool showSolution);

    /// The outline of every cell, water too.
    void DrawCellOutlines();

    /// The island `id` with its number; nothing where there is water.
    void DrawIsland(CellNumber id);

    /// The thin line between two islands, if lines are to be shown.
    void DrawLinkLine(CellNumber a, CellNumber b);

    /// All bridges of the player, with the islands over their ends.
    void DrawPlacedBridges();

 private:
    void DrawLine(CellNumber a, CellNumber b, Colour colour);
    void DrawDouble(CellNumber a, CellNumber b, Colour colour);
    void DrawOpenNeighbours();
    void DrawSights();
    void DrawLinks();
    void DrawShape(CellNumber id, double half, Colour colour);
    Colour DrawIslandShape(CellNumber id);
    Colour NumberColour(Colour under) const;

    Surface& picture_;
    const Board& board_;
    const Options& options_;
    bool showsSolution_ = false;
};

}  // namespace tidewalk
