// SPDX-License-Identifier: MIT
#include "drawing/printed_board.h"

#include <algorithm>

#include "drawing/double_line.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Two fifths of a cell: discs of neighbours two cells apart leave more than a cell of their bridges to be seen, and
/// both strokes of a double bridge, a seventh of a cell apart at most, end well inside the disc.
constexpr double kRadiusInCells = 0.4;

/// A square's half side: its number has the room that it has in a disc, and neighbours' corners stay apart.
constexpr double kSquareInCells = 0.36;

void DrawDouble(Surface& surface, const PrintedBoard& board, const CellPlace& a, const CellPlace& b) {
    const double shift = board.centredDoubles ? surface.StrokeDistance(board.Gap()) / 2 : 0;
    const double right = a.col == b.col ? shift : 0;
    const double down = a.row == b.row ? shift : 0;
    DrawDoubleLine(surface, board.X(a.col) - right, board.Y(a.row) - down, board.X(b.col) - right,
                   board.Y(b.row) - down, board.Gap(), kBlack);
}

void DrawBridges(const Puzzle& puzzle, Surface& surface, const PrintedBoard& board) {
    for (const Link& link : puzzle.LinkList) {
        const CellPlace a = puzzle.PlaceOf(link.first);
        const CellPlace b = puzzle.PlaceOf(link.second);
        surface.SetKind(link.Bridges() == 2 ? Kind::DoubleBridge : Kind::Bridge);
        if (link.Bridges() == 1) surface.Line(board.X(a.col), board.Y(a.row), board.X(b.col), board.Y(b.row), kBlack);
        if (link.Bridges() == 2) DrawDouble(surface, board, a, b);
    }
}

/// All islands come before all numbers, and all fills before all frames: a page's file says once what follows in one
/// look.
void DrawIslands(const Puzzle& puzzle, Surface& surface, const PrintedBoard& board) {
    const double radius = board.Radius();
    const auto forEachIsland = [&](const auto& draw) {
        for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
            const CellPlace place = puzzle.PlaceOf(id);
            if (puzzle.IslandAt(id) > 0) draw(puzzle.IslandAt(id), board.X(place.col), board.Y(place.row));
        }
    };
    surface.SetKind(Kind::Island);
    if (board.shape == IslandShape::Circle) {
        forEachIsland([&](int, double x, double y) { surface.Circle(x, y, radius, kBlack, kWhite); });
    } else {
        forEachIsland([&](int, double x, double y) {
            surface.FilledBox(x - radius, y - radius, x + radius, y + radius, kWhite);
        });
        forEachIsland(
            [&](int, double x, double y) { surface.Box(x - radius, y - radius, x + radius, y + radius, kBlack); });
    }
    surface.SetKind(Kind::Number);
    forEachIsland([&](int number, double x, double y) { surface.PrintCentred(x, y, NumText(number), kBlack); });
}

}  // namespace

double PrintedBoard::Radius() const {
    return (shape == IslandShape::Circle ? kRadiusInCells : kSquareInCells) * cell;
}

int PrintedBoard::Gap() const {
    return RoundHalfEven(cell / 8.0);
}

int LimitedPen(const PrintedBoard& board, int lineWidth) {
    constexpr double kShare = 0.55;
    const int widest = static_cast<int>(board.Gap() / kTwipsPerPen * kShare);
    return std::clamp(lineWidth, 1, std::max(widest, 1));
}

PrintedBoard BoardOfCell(int cell, double left, double top, IslandShape shape, int lineWidth) {
    constexpr double kCellPerPoint = 33;
    PrintedBoard board;
    board.cell = cell;
    board.half = cell / 2;
    board.left = left;
    board.top = top;
    board.fontSize = cell / kCellPerPoint;
    board.shape = shape;
    board.centredDoubles = true;
    board.lineWidth = LimitedPen(board, lineWidth);
    return board;
}

void Include(Surface::Area& drawn, const Surface::Area& added) {
    drawn.left = std::min(drawn.left, added.left);
    drawn.top = std::min(drawn.top, added.top);
    drawn.right = std::max(drawn.right, added.right);
    drawn.bottom = std::max(drawn.bottom, added.bottom);
}

void DrawPrintedBoard(const Puzzle& puzzle, Surface& surface, const PrintedBoard& board, bool withBridges,
                      Surface::Area& drawn) {
    surface.SetDrawWidth(board.lineWidth);
    surface.SetFontSize(board.fontSize);
    if (withBridges) DrawBridges(puzzle, surface, board);
    DrawIslands(puzzle, surface, board);
    const double reach = board.Radius() + board.lineWidth * kTwipsPerPen / 2;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (puzzle.IslandAt(id) <= 0) continue;
        const double x = board.X(puzzle.CellCol(id));
        const double y = board.Y(puzzle.CellRow(id));
        Include(drawn, {x - reach, y - reach, x + reach, y + reach});
    }
}

}  // namespace tidewalk
