// SPDX-License-Identifier: MIT
// The board's geometry: cell size, margins, the place of every island. All lengths are twips.
#pragma once

#include "drawing/surface.h"
#include "model/puzzle.h"

namespace tidewalk {

inline constexpr int kSmallestCell = 200;
inline constexpr int kLargestCell = 700;

/// A rectangle on the board or in its container.
struct Frame {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Frame&) const = default;
};

/// A position on the board or in its container.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// Where everything on the board lies, and how wide its strokes are.
struct BoardLayout {
    BoardSize size;
    int CellSize = 250;  ///< the side of a cell, 200..700 after every layout
    int HalfCell = 0;
    int DoubleGap = 0;  ///< between the two strokes of a double line
    int OriginX = 125;  ///< where the island of row 1, column 1 lies
    int OriginY = 125;
    int LineWidth = 1;    ///< the normal pen, in pixels
    double fontSize = 5;  ///< of the islands' numbers, in points
    Frame Picture1;       ///< the board in its container

    int IslandX(int col) const { return (col - 1) * CellSize + OriginX; }
    int IslandY(int row) const { return (row - 1) * CellSize + OriginY; }
    /// Where the island of a cell lies.
    Point At(CellPlace cell) const {
        return {static_cast<double>(IslandX(cell.col)), static_cast<double>(IslandY(cell.row))};
    }
};

/// The cell size with which a board of this size fits a container of this width.
int FittingCellSize(BoardSize size, double width);

/// How much a laid-out board can be magnified so that all its cells are seen, centred as they are, in a container of
/// the given area; at least a hundredth.
double FittingMagnification(const BoardLayout& layout, Surface::Extent area);

/// What the cells take up, with their outlines, on the board's picture.
Frame CellsOf(const BoardLayout& layout);

/// The layout of a board with cells of about `cellSize`, brought into 200..700 (0 stands for 300), in the middle of a
/// container of the given area.
BoardLayout LayoutBoard(BoardSize size, int cellSize, Surface::Extent area);

/// Moves the board back into the middle of its container.
void CentreBoard(BoardLayout& layout, Surface::Extent area);

/// The cell whose island lies within half a cell of `point` in both directions; its row and column may lie off the
/// board.
CellPlace CellUnder(const BoardLayout& layout, Point point);

}  // namespace tidewalk
