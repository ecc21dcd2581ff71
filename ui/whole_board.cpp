// SPDX-License-Identifier: MIT
#include "ui/whole_board.h"

#include <algorithm>

#include "board/drawing.h"
#include "model/numbers.h"
#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr double kMargin = 0.15;  ///< around the cells, in cells

QSizeF WholeSize(const Board& board) {
    return {Pixels(board.layout.Picture1.width), Pixels(board.layout.Picture1.height)};
}

}  // namespace

BoardLayout WholeBoardLayout(BoardSize size) {
    BoardLayout layout = LayoutBoard(size, kLargestCell, {});
    const double cell = layout.CellSize;
    layout.OriginX = layout.OriginY = RoundHalfEven(kMargin * cell) + layout.HalfCell;
    layout.Picture1 = {0, 0, (size.cols + 2 * kMargin) * cell, (size.rows + 2 * kMargin) * cell};
    return layout;
}

double ScaleInto(const Board& board, QSizeF room) {
    const QSizeF whole = WholeSize(board);
    return std::min(room.width() / whole.width(), room.height() / whole.height());
}

QPixmap DrawWholeBoard(const Board& board, const Options& options, double scale, double ratio) {
    QPixmap drawn((WholeSize(board) * scale * ratio).toSize().expandedTo({1, 1}));
    drawn.setDevicePixelRatio(ratio);
    QtSurface surface(kScreenPixelsPerInch * scale, kTwipsPerPixel);
    surface.SetTarget(&drawn);
    BoardDrawing(surface, board, options).RedrawBoard(false);
    surface.SetTarget(nullptr);
    return drawn;
}

}  // namespace tidewalk
