// SPDX-License-Identifier: MIT
// From the board's twips to the window's pixels and back, at the board's magnification.
#pragma once

#include <QPointF>

#include "board/board.h"
#include "ui/qt_surface.h"

namespace tidewalk {

inline double Pixels(const Board& board, double twips) {
    return Pixels(twips) * board.magnification;
}

inline QPointF Pixels(const Board& board, Point twips) {
    return {Pixels(board, twips.x), Pixels(board, twips.y)};
}

inline Point Twips(const Board& board, const QPointF& pixels) {
    const double scale = kTwipsPerPixel / board.magnification;
    return {pixels.x() * scale, pixels.y() * scale};
}

}  // namespace tidewalk
