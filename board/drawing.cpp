// SPDX-License-Identifier: MIT
#include "board/drawing.h"

#include "board/draw_marks.h"
#include "board/place_bridge.h"
#include "drawing/contrast.h"
#include "drawing/double_line.h"
#include "model/numbers.h"

namespace tidewalk {

void BoardDrawing::DrawLine(CellNumber a, CellNumber b, Colour colour) {
    const Point from = board_.At(a);
    const Point to = board_.At(b);
    picture_.Line(from.x, from.y, to.x, to.y, colour);
}

void BoardDrawing::DrawDouble(CellNumber a, CellNumber b, Colour colour) {
    const Point from = board_.At(a);
    const Point to = board_.At(b);
    DrawDoubleLine(picture_, from.x, from.y, to.x, to.y, board_.layout.DoubleGap, colour);
}

/// The lines to the islands that the solver still held for open.
void BoardDrawing::DrawOpenNeighbours() {
    for (CellNumber id = 1; id <= board_.puzzle.CellCount(); ++id) {
        if (board_.puzzle.IslandAt(id) <= 0) continue;
        for (const CellNumber neighbour : board_.OpenNeighbours[id])
            DrawLine(id, neighbour, options_.GridColour);
    }
}

/// In the normal view the stored solution must not show through: every pair that sees each other has its line.
void BoardDrawing::DrawSights() {
    if (showsSolution_ || options_.StoredLinesOnly) return;
    for (const auto& [a, b] : PairsInSight(board_.puzzle))
        DrawLinkLine(a, b);
}

void BoardDrawing::DrawLinks() {
    for (const Link& link : board_.puzzle.LinkList) {
        if (!showsSolution_ && !options_.StoredLinesOnly && SeeEachOther(board_.puzzle, link.first, link.second))
            continue;
        if (!showsSolution_ || link.Bridges() == 1) {
            DrawLinkLine(link.first, link.second);
        } else if (link.Bridges() == 2) {
            DrawDouble(link.first, link.second, options_.GridColour);
        }
    }
}

/// The island's shape around its position, `half` twips to each side of a circle and three quarters of that of a
/// square.
void BoardDrawing::DrawShape(CellNumber id, double half, Colour colour) {
    const auto [x, y] = board_.At(id);
    if (options_.NodeShape == 1) {
        picture_.Circle(x, y, half, colour, colour);
    } else {
        const double side = half - half / 4;
        picture_.FilledBox(x - side, y - side, x + side, y + side, colour);
    }
}

/// What the number stands on, after the island's shape is drawn: the shape's colour, or that of the pale inside which
/// the player may wish for islands that have all their bridges. The stored solution has nothing to do with how far the
/// player is.
Colour BoardDrawing::DrawIslandShape(CellNumber id) {
    const double half = board_.layout.HalfCell;
    const bool pales =
        options_.ShowFinished && !showsSolution_ && board_.ShownBridges().CountAt(id) == board_.puzzle.IslandAt(id);
    if (!pales) {
        DrawShape(id, half, options_.NodeColour);
        return options_.NodeColour;
    }
    constexpr double kRim = 0.12;
    constexpr double kPaleness = 0.8;
    // Between two dark colours only a rim that stands out tells the island from the others.
    DrawShape(id, half, LegibleOn(options_.BoardBackground(), options_.NodeColour, kShapeContrast));
    const Colour pale = Mixed(options_.NodeColour, options_.BoardBackground(), kPaleness);
    DrawShape(id, half * (1 - kRim), pale);
    return pale;
}

/// A number in nearly the colour of its island would be invisible, and nothing keeps a player from choosing the same
/// for both. On the pale inside of a finished island hardly any of the players' colours can be read.
Colour BoardDrawing::NumberColour(Colour under) const {
    constexpr double kTold = 1.2;  // below that even the large digits cannot be told from their island
    if (under != options_.NodeColour) return LegibleOn(under, options_.NodeColour, kShapeContrast);
    return Contrast(options_.GivenColour, under) < kTold ? LegibleOn(under, options_.GivenColour)
                                                         : options_.GivenColour;
}

void BoardDrawing::RedrawBoard(bool showSolution) {
    showsSolution_ = showSolution;
    picture_.SetFontSize(board_.layout.fontSize);
    picture_.Clear(options_.BoardBackground());
    DrawCellOutlines();
    DrawOpenNeighbours();
    DrawSights();
    DrawLinks();
    for (CellNumber id = 1; id <= board_.puzzle.CellCount(); ++id)
        DrawIsland(id);
    if (showSolution) return;
    DrawPlacedBridges();
    MarkDrawing marks(picture_, board_, options_);
    marks.DrawMarkedPairs();
    marks.DrawMistakes();
}

void BoardDrawing::DrawCellOutlines() {
    picture_.SetDrawWidth(1);
    const int half = board_.layout.HalfCell;
    for (CellNumber id = 1; id <= board_.puzzle.CellCount(); ++id) {
        const auto [x, y] = board_.At(id);
        picture_.Box(x - half, y - half, x + half, y + half, options_.SchemeColours[kOutlineEntry]);
    }
    picture_.SetDrawWidth(board_.layout.LineWidth);
}

void BoardDrawing::DrawIsland(CellNumber id) {
    const int number = board_.puzzle.IslandAt(id);
    if (number <= 0) return;
    const std::string text = NumText(number);
    const Surface::Extent extent = picture_.TextExtent(text);
    const BoardLayout& layout = board_.layout;
    const int dx = RoundHalfEven((layout.CellSize - extent.width) / 2 - layout.HalfCell);
    const int dy = RoundHalfEven((layout.CellSize - extent.height) / 2 - layout.HalfCell);
    const Colour under = DrawIslandShape(id);
    const auto [x, y] = board_.At(id);
    picture_.Print(x + dx, y + dy, text, NumberColour(under));
}

/// The view of the solution shows all its lines, whether or not lines are to be shown otherwise.
void BoardDrawing::DrawLinkLine(CellNumber a, CellNumber b) {
    if (options_.ShowLines != 0 || showsSolution_) DrawLine(a, b, options_.GridColour);
}

void BoardDrawing::DrawPlacedBridges() {
    picture_.SetDrawWidth(2 * board_.layout.LineWidth);
    for (const auto& [a, b, bridges] : board_.ShownBridges().InBothOrders()) {
        if (bridges == 1) {
            // The strip where the second stroke of a double bridge would lie is wiped.
            DrawDouble(a, b, options_.BoardBackground());
            DrawLine(a, b, options_.ChainColour);
        } else {
            DrawDouble(a, b, options_.ChainColour);
        }
        DrawIsland(a);
        DrawIsland(b);
    }
    picture_.SetDrawWidth(board_.layout.LineWidth);
}

}  // namespace tidewalk
