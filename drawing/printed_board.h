// SPDX-License-Identifier: MIT
// One board in black on white, as it stands on pictures and pages.
#pragma once

#include "drawing/surface.h"
#include "model/puzzle.h"

namespace tidewalk {

/// Pictures and pages count pen widths in this many to the inch, so that a stroke is as wide on paper at 300 dpi as at
/// 1200, and as wide in a picture.
inline constexpr double kPensPerInch = 300;
inline constexpr double kTwipsPerPen = 1440 / kPensPerInch;

enum class IslandShape { Circle, Square };

/// The geometry of one board on a picture or a page, in twips.
struct PrintedBoard {
    int cell = 0;
    int half = 0;  ///< from a cell's corner to its centre
    double left = 0;
    double top = 0;
    double fontSize = 0;  ///< of the islands' numbers, in points
    int lineWidth = 1;    ///< the pen, in `kPensPerInch`
    IslandShape shape = IslandShape::Circle;
    /// Whether the strokes of a double bridge lie on either side of the line between the islands' centres. Otherwise
    /// the first one lies on it, as on the screen.
    bool centredDoubles = false;

    double X(int col) const { return left + (col - 1) * cell + half; }
    double Y(int row) const { return top + (row - 1) * cell + half; }
    /// Of a circle; half the side of a square.
    double Radius() const;
    /// Between the two strokes of a double bridge.
    int Gap() const;
};

/// The pen, in `kPensPerInch`, but no wider than leaves the two strokes of a double bridge clearly apart.
int LimitedPen(const PrintedBoard& board, int lineWidth);

/// A board that fits a cell of any size, with numbers half as high as its islands and its double bridges in the middle.
PrintedBoard BoardOfCell(int cell, double left, double top, IslandShape shape, int lineWidth);

/// The rectangle `drawn` grows until it holds the other one, too.
void Include(Surface::Area& drawn, const Surface::Area& added);

/// Draws the islands with their numbers, and before them the stored bridges if `withBridges`. `drawn` grows by the
/// islands.
void DrawPrintedBoard(const Puzzle& puzzle, Surface& surface, const PrintedBoard& board, bool withBridges,
                      Surface::Area& drawn);

}  // namespace tidewalk
