// SPDX-License-Identifier: MIT
#include "board/draw_marks.h"

#include <algorithm>
#include <cmath>

#include "drawing/contrast.h"

namespace tidewalk {

namespace {

constexpr Colour kMistakeColour = Rgb(220, 20, 60);

}  // namespace

MarkDrawing::MarkDrawing(Surface& picture, const Board& board, const Options& options)
    : picture_(picture),
      board_(board),
      options_(options),
      colour_(LegibleOn(options.BoardBackground(), kMistakeColour, kShapeContrast)) {}

void MarkDrawing::DrawMarkedPairs() {
    if (board_.Marks.All().empty()) return;
    for (const auto& [a, b] : board_.Marks.All())
        DrawCross(PlaceOfMark(board_.At(a), board_.At(b)));
    picture_.SetDrawWidth(board_.layout.LineWidth);
}

/// The middle of a pair; where that is the middle of a cell, in which other lines may cross this one, a little before
/// it, so that the cross lies on its own line alone.
Point MarkDrawing::PlaceOfMark(Point from, Point to) const {
    constexpr double kAside = 0.5;       // the border of the cell
    constexpr double kFromIsland = 0.7;  // so far from its middle even a round one leaves room
    const double cells = (std::abs(to.x - from.x) + std::abs(to.y - from.y)) / board_.layout.CellSize;
    double at = cells / 2;
    if (std::lround(cells) % 2 == 0) at = std::max(at - kAside, kFromIsland);
    return {from.x + (to.x - from.x) * at / cells, from.y + (to.y - from.y) * at / cells};
}

void MarkDrawing::DrawCross(Point middle) {
    constexpr double kArm = 0.13;
    const double arm = kArm * board_.layout.CellSize;
    const auto draw = [&](int width, Colour colour) {
        picture_.SetDrawWidth(width);
        picture_.Line(middle.x - arm, middle.y - arm, middle.x + arm, middle.y + arm, colour);
        picture_.Line(middle.x - arm, middle.y + arm, middle.x + arm, middle.y - arm, colour);
    };
    // Between islands that touch it lies on these.
    const int pen = 2 * board_.layout.LineWidth;
    draw(pen + 2, options_.BoardBackground());
    draw(pen, LegibleOn(options_.BoardBackground(), options_.ChainColour, kShapeContrast));
}

void MarkDrawing::DrawMistakes() {
    if (!options_.ShowOverfull && !options_.ShowCrossings && !options_.ShowClosedGroups) return;
    const Mistakes mistakes = FindMistakes(board_.puzzle, board_.ShownBridges());
    picture_.SetDrawWidth(2 * board_.layout.LineWidth);
    if (options_.ShowOverfull) {
        const double half = board_.layout.HalfCell;
        for (const CellNumber id : mistakes.overfull) {
            const auto [x, y] = board_.At(id);
            picture_.Box(x - half, y - half, x + half, y + half, colour_);
        }
    }
    if (options_.ShowCrossings) {
        for (const auto* cells : {&mistakes.crossings, &mistakes.runOver}) {
            for (const CellNumber id : *cells)
                DrawDiamond(id);
        }
    }
    if (options_.ShowClosedGroups) {
        for (const CellNumber id : mistakes.closed)
            DrawBrackets(id);
    }
    picture_.SetDrawWidth(board_.layout.LineWidth);
}

/// Around the cell, so that what crosses there stays in view.
void MarkDrawing::DrawDiamond(CellNumber id) {
    const auto [x, y] = board_.At(id);
    const double half = board_.layout.HalfCell;
    picture_.Line(x - half, y, x, y - half, colour_);
    picture_.Line(x, y - half, x + half, y, colour_);
    picture_.Line(x + half, y, x, y + half, colour_);
    picture_.Line(x, y + half, x - half, y, colour_);
}

void MarkDrawing::DrawBrackets(CellNumber id) {
    constexpr double kFoot = 0.4;
    constexpr double kInside = 0.86;  // of the box that the island may have, too
    const auto [x, y] = board_.At(id);
    const double half = kInside * board_.layout.HalfCell;
    for (const double side : {-half, half}) {
        const double foot = x + side * (1 - kFoot);
        picture_.Line(x + side, y - half, x + side, y + half, colour_);
        picture_.Line(x + side, y - half, foot, y - half, colour_);
        picture_.Line(x + side, y + half, foot, y + half, colour_);
    }
}

}  // namespace tidewalk
