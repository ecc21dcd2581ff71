// SPDX-License-Identifier: MIT
// What is drawn over the player's bridges: crosses on pairs without one, and mistakes. Every
// meaning has a shape of its own, so that none depends on its colour.
#pragma once

#include "board/board.h"
#include "board/mistakes.h"
#include "drawing/surface.h"
#include "options/options.h"

namespace tidewalk {

/// Draws on a board's picture. What is given has to live as long.
class MarkDrawing {
 public:
    MarkDrawing(Surface& picture, const Board& board, const Options& options);

    /// A small cross on the line of every marked pair, about in its middle.
    void DrawMarkedPairs();

    /// The mistakes that the player wants to see: a box around an island with too many bridges, a diamond where bridges
    /// cross or run over an island, brackets at the islands of a finished group while others remain.
    void DrawMistakes();

 private:
    Point PlaceOfMark(Point from, Point to) const;
    void DrawCross(Point middle);
    void DrawDiamond(CellNumber id);
    void DrawBrackets(CellNumber id);

    Surface& picture_;
    const Board& board_;
    const Options& options_;
    Colour colour_;
};

}  // namespace tidewalk
