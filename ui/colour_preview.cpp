// SPDX-License-Identifier: MIT
#include "ui/colour_preview.h"

#include <QPainter>

#include "ui/whole_board.h"

namespace tidewalk {

namespace {

constexpr int kSide = 5;  ///< of the board, in cells

/// An island in every other cell of every other row.
constexpr int kNumbers[3][3] = {{2, 4, 2}, {3, 4, 3}, {1, 1, 1}};

struct Laid {
    CellPlace from;
    CellPlace to;
    int bridges;
};

/// On the left a finished group of two, on the right an island with a bridge too many.
constexpr Laid kLaid[] = {
    {{1, 1}, {1, 3}, 2}, {{1, 3}, {1, 5}, 1}, {{3, 1}, {3, 3}, 1}, {{5, 1}, {5, 3}, 1}, {{3, 5}, {5, 5}, 2}};

/// With the bridges above they are what the puzzle stores, so that thin lines for these alone can be seen, too.
constexpr Laid kStored[] = {{{3, 3}, {3, 5}, 1}, {{3, 3}, {5, 3}, 1}};

Board SampleBoard() {
    Board board;
    Puzzle puzzle({kSide, kSide});
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            puzzle.SetIsland(puzzle.CellId(2 * row + 1, 2 * col + 1), kNumbers[row][col]);
    }
    const auto store = [&](const Laid& laid) {
        puzzle.LinkList.push_back(MakeLink(puzzle.CellId(laid.from), puzzle.CellId(laid.to), 2 - laid.bridges));
    };
    for (const Laid& laid : kLaid) {
        store(laid);
        board.BridgeState.Set(puzzle.CellId(laid.from), puzzle.CellId(laid.to), laid.bridges);
    }
    for (const Laid& laid : kStored)
        store(laid);
    board.Marks.Set(puzzle.CellId(1, 3), puzzle.CellId(3, 3), true);
    board.puzzle = puzzle;
    board.layout = WholeBoardLayout(puzzle.Size());
    return board;
}

}  // namespace

ColourPreview::ColourPreview(QWidget* parent) : QWidget(parent), board_(SampleBoard()) {
    setObjectName("Preview");
    setAccessibleName(tr("Preview of the board"));
}

void ColourPreview::Show(const Options& options) {
    options_ = options;
    update();
}

void ColourPreview::paintEvent(QPaintEvent*) {
    const QPixmap drawn = DrawWholeBoard(board_, options_, ScaleInto(board_, size()), devicePixelRatioF());
    QPainter(this).drawPixmap(qRound((width() - drawn.deviceIndependentSize().width()) / 2), 0, drawn);
}

}  // namespace tidewalk
