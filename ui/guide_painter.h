// SPDX-License-Identifier: MIT
// The marks of a hint or of an explained step, painted over the board.
#pragma once

#include <QPainter>
#include <functional>

#include "board/board.h"
#include "options/options.h"

namespace tidewalk {

/// Paints a guide in the scheme's highlight, or in what is read better on the board's background. A frame is solid
/// around the island that it is all about, and dashed around the others; bridges to lay are dashed strokes; a pair
/// without a further bridge has a small cross, a wrong bridge a large one.
class GuidePainter {
 public:
    /// The painter's origin is the board's corner. What is given has to live as long.
    GuidePainter(QPainter& painter, const Board& board, const Options& options);

    void Paint(const Guide& guide);

    /// A frame around two islands and what lies between them.
    void PaintPair(CellNumber a, CellNumber b);

 private:
    void Frame(CellNumber id, Qt::PenStyle style);
    void Strokes(const MarkedPair& pair);
    void Cross(const MarkedPair& pair, double half);
    void Outlined(const QColor& colour, Qt::PenStyle style, const std::function<void()>& draw);
    QPointF MiddleOf(CellNumber id) const;

    QPainter& painter_;
    const Board& board_;
    QColor background_;
    QColor highlight_;
};

}  // namespace tidewalk
