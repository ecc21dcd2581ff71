// SPDX-License-Identifier: MIT
#include "board/drawing.h"

#include <utility>

#include "board/check_bridges.h"
#include "board/layout.h"
#include "model/contrast.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

void DrawLine(Game& game, CellNumber a, CellNumber b, Colour colour) {
    game.pictures.Picture1().Line(game.IslandX[a], game.IslandY[a], game.IslandX[b], game.IslandY[b], colour);
}

void DrawDouble(Game& game, CellNumber a, CellNumber b, Colour colour) {
    DrawDoubleLine(game.pictures.Picture1(), game.IslandX[a], game.IslandY[a], game.IslandX[b], game.IslandY[b],
                   game.DoubleGap, colour);
}

/// The lines to the islands that the solver still holds for open.
void DrawOpenNeighbours(Game& game) {
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        if (game.IslandAt(id) <= 0) continue;
        for (const CellNumber neighbour : game.OpenNeighbours(game.CellRow[id], game.CellCol[id])) {
            DrawLine(game, id, neighbour, game.GridColour);
        }
    }
}

void DrawLinks(Game& game, bool showSolution) {
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link& link = game.LinkList[i];
        if (!showSolution || link.state == 1) {
            DrawLinkLine(game, link.first, link.second);
        } else if (link.state == 0) {
            DrawDouble(game, link.first, link.second, game.GridColour);
        }
    }
}

void DrawPlacedBridge(Game& game, CellNumber a, CellNumber b) {
    const int bridges = game.BridgeState(a, b);
    if (bridges == 0 || game.IslandAt(a) < 1 || game.IslandAt(b) < 1) return;
    Surface& picture = game.pictures.Picture1();
    picture.SetDrawWidth(2 * game.LineWidth);
    if (bridges == 1) {
        // What was a double bridge a move ago leaves its second stroke.
        DrawDouble(game, a, b, game.Picture1BackColor);
        DrawLine(game, a, b, game.ChainColour);
    } else {
        DrawDouble(game, a, b, game.ChainColour);
    }
    DrawIsland(game, a);
    DrawIsland(game, b);
}

/// The island's shape around its position, `half` twips to each side of a circle and three quarters of that of a
/// square.
void DrawShape(Game& game, CellNumber id, double half, Colour colour) {
    Surface& picture = game.pictures.Picture1();
    const double x = game.IslandX[id];
    const double y = game.IslandY[id];
    if (game.NodeShape == 1) {
        picture.Circle(x, y, half, colour, colour);
    } else {
        const double side = half - half / 4;
        picture.FilledBox(x - side, y - side, x + side, y + side, colour);
    }
}

/// What the number stands on, after the island's shape is drawn: the shape's colour, or that of the pale inside which
/// the player may wish for islands that have all their bridges. The rim stays, so that a later move covers all of it.
Colour DrawIslandShape(Game& game, CellNumber id) {
    DrawShape(game, id, game.HalfCell, game.NodeColour);
    if (game.ShowFinished == 0 || CountBridges(game, id) != game.IslandAt(id)) return game.NodeColour;
    constexpr double kRim = 0.12;
    constexpr double kPaleness = 0.8;
    const Colour pale = Mixed(game.NodeColour, game.Picture1BackColor, kPaleness);
    DrawShape(game, id, game.HalfCell * (1 - kRim), pale);
    return pale;
}

/// A number in the very colour of its island would be invisible, and the default options make both black. On the pale
/// inside of a finished island hardly any of the players' colours can be read.
Colour NumberColour(const Game& game, Colour under) {
    if (under != game.NodeColour) return LegibleOn(under, game.NodeColour, kShapeContrast);
    return game.GivenColour == under ? LegibleOn(under, game.GivenColour) : game.GivenColour;
}

}  // namespace

void RedrawBoard(Game& game, bool showSolution) {
    Surface& picture = game.pictures.Picture1();
    // The stored solution has nothing to do with how far the player is.
    const int finished = std::exchange(game.ShowFinished, showSolution ? 0 : game.ShowFinished);
    picture.Clear(game.Picture1BackColor);
    DrawCellOutlines(game);
    DrawOpenNeighbours(game);
    DrawLinks(game, showSolution);
    for (CellNumber id = 1; id <= game.CellCount; ++id)
        DrawIsland(game, id);
    if (!showSolution) DrawPlacedBridges(game);
    game.ShowFinished = finished;
}

void ShowSolution(Game& game) {
    const int shown = std::exchange(game.ShowLines, 1);
    RedrawBoard(game, true);
    game.ShowLines = shown;
}

void DrawCellOutlines(Game& game) {
    Surface& picture = game.pictures.Picture1();
    picture.SetDrawWidth(1);
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const int x = game.IslandX[id];
        const int y = game.IslandY[id];
        picture.Box(x - game.HalfCell, y - game.HalfCell, x + game.HalfCell, y + game.HalfCell,
                    game.SchemeColours[kOutlineEntry]);
    }
    picture.SetDrawWidth(game.LineWidth);
}

void DrawIsland(Game& game, CellNumber id) {
    const int number = game.IslandAt(id);
    if (number <= 0) return;
    Surface& picture = game.pictures.Picture1();
    const std::string text = NumText(number);
    const Surface::Extent extent = picture.TextExtent(text);
    const int dx = RoundHalfEven((game.CellSize - extent.width) / 2 - game.HalfCell);
    const int dy = RoundHalfEven((game.CellSize - extent.height) / 2 - game.HalfCell);
    const Colour under = DrawIslandShape(game, id);
    picture.Print(game.IslandX[id] + dx, game.IslandY[id] + dy, text, NumberColour(game, under));
}

void DrawLinkLine(Game& game, CellNumber a, CellNumber b) {
    if (game.ShowLines != 0) DrawLine(game, a, b, game.GridColour);
}

void DrawDoubleLine(Surface& target, double x1, double y1, double x2, double y2, double gap, Colour colour) {
    if (x1 == x2) {
        target.Line(x1, y1, x1, y2, colour);
        target.Line(x1 + gap, y1, x1 + gap, y2, colour);
    }
    if (y1 == y2) {
        target.Line(x1, y1, x2, y1, colour);
        target.Line(x1, y1 + gap, x2, y1 + gap, colour);
    }
}

void DrawPlacedBridges(Game& game) {
    for (CellNumber a = 1; a <= game.CellCount; ++a) {
        const auto [row, col] = game.PlaceOf(a);
        for (int other = 1; other < row; ++other)
            DrawPlacedBridge(game, a, game.CellId(other, col));
        for (int other = 1; other <= game.Cols; ++other) {
            if (other != col) DrawPlacedBridge(game, a, game.CellId(row, other));
        }
        for (int other = row + 1; other <= game.Rows; ++other)
            DrawPlacedBridge(game, a, game.CellId(other, col));
    }
    game.pictures.Picture1().SetDrawWidth(game.LineWidth);
}

void DrawBridge(Game& game, CellNumber a, CellNumber b, int bridges) {
    Surface& picture = game.pictures.Picture1();
    picture.SetDrawWidth(2 * game.LineWidth);
    if (bridges == 1) {
        DrawLine(game, a, b, game.ChainColour);
    } else {
        DrawDouble(game, a, b, game.ChainColour);
    }
    picture.SetDrawWidth(game.LineWidth);
}

void EraseBridge(Game& game, CellNumber a, CellNumber b) {
    Surface& picture = game.pictures.Picture1();
    picture.SetDrawWidth(3 * game.LineWidth);
    DrawDouble(game, a, b, game.Picture1BackColor);
    picture.SetDrawWidth(game.LineWidth);
    DrawLinkLine(game, a, b);
}

void DrawnBoard::LayoutBoard(Game& game) {
    tidewalk::LayoutBoard(game);
}

void DrawnBoard::RedrawBoard(Game& game, bool showSolution) {
    tidewalk::RedrawBoard(game, showSolution);
}

void DrawnBoard::ShowSolution(Game& game) {
    tidewalk::ShowSolution(game);
}

}  // namespace tidewalk
