// SPDX-License-Identifier: MIT
#include "board/layout.h"

#include <algorithm>
#include <cmath>

#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr int kCellSizeOfNone = 300;       ///< stands in for a cell size of 0
constexpr double kTwipsPerFontPoint = 50;  ///< a cell of 50 twips takes numbers of one point
constexpr int kTwipsPerPenPixel = 200;     ///< a cell of 200 twips takes a pen of one pixel
constexpr double kBoardMargin = 1.15;      ///< the board is 15% larger than the cells that it holds

/// The 1-based index of the cell that a coordinate belongs to, kept within what an int holds.
int CellIndex(double at, int origin, int cell) {
    constexpr double kFarOff = 1e6;
    return static_cast<int>(std::floor(std::clamp((at - origin - cell / 2.0) / cell, -kFarOff, kFarOff))) + 2;
}

}  // namespace

int FittingCellSize(BoardSize size, double width) {
    return RoundHalfEven(width / (std::max(size.rows, size.cols) + 2));
}

double FittingMagnification(const BoardLayout& layout, Surface::Extent area) {
    constexpr double kLeast = 0.01;
    const Frame cells = CellsOf(layout);
    const Frame& picture = layout.Picture1;
    // The cells do not lie in the middle of the picture, which is what is centred; and a frame lies around them.
    const double aside = std::abs(cells.left + cells.width / 2 - picture.width / 2);
    const double below = std::abs(cells.top + cells.height / 2 - picture.height / 2);
    const double margin = layout.HalfCell;
    return std::max(kLeast, std::min(area.width / (cells.width + 2 * aside + margin),
                                     area.height / (cells.height + 2 * below + margin)));
}

Frame CellsOf(const BoardLayout& layout) {
    const Point first = layout.At({1, 1});
    const double cell = layout.CellSize;
    return {first.x - layout.HalfCell, first.y - layout.HalfCell, cell * layout.size.cols, cell * layout.size.rows};
}

BoardLayout LayoutBoard(BoardSize size, int cellSize, Surface::Extent area) {
    BoardLayout layout;
    const int cell = std::clamp(cellSize == 0 ? kCellSizeOfNone : cellSize, kSmallestCell, kLargestCell);
    layout.size = size;
    layout.CellSize = cell;
    layout.HalfCell = RoundHalfEven(cell / 2.0);
    layout.DoubleGap = RoundHalfEven(cell / 6.0);
    layout.Picture1.width = cell * kBoardMargin * size.cols;
    layout.Picture1.height = cell * kBoardMargin * size.rows;
    // The half cell is added downwards only: islands lie in the middle of their cells' height but on their left edge.
    // The pointer's cell is found by the same positions.
    layout.OriginY = RoundHalfEven((layout.Picture1.height - size.rows * cell) / 2 + layout.HalfCell);
    layout.OriginX = RoundHalfEven((layout.Picture1.width - size.cols * cell) / 2);
    layout.LineWidth = std::max(cell / kTwipsPerPenPixel, 1);
    layout.fontSize = cell / kTwipsPerFontPoint;
    CentreBoard(layout, area);
    return layout;
}

void CentreBoard(BoardLayout& layout, Surface::Extent area) {
    layout.Picture1.left = (area.width - layout.Picture1.width) / 2;
    layout.Picture1.top = (area.height - layout.Picture1.height) / 2;
}

CellPlace CellUnder(const BoardLayout& layout, Point point) {
    return {CellIndex(point.y, layout.OriginY, layout.CellSize), CellIndex(point.x, layout.OriginX, layout.CellSize)};
}

}  // namespace tidewalk
