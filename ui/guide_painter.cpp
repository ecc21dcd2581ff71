// SPDX-License-Identifier: MIT
#include "ui/guide_painter.h"

#include "drawing/contrast.h"
#include "ui/board_pixels.h"

namespace tidewalk {

namespace {

constexpr double kPen = 3;      ///< in pixels
constexpr double kOutline = 3;  ///< what is seen of the background on both sides together, in pixels
constexpr double kCorner = 3;   ///< the radius of a frame's corners, in pixels

}  // namespace

GuidePainter::GuidePainter(QPainter& painter, const Board& board, const Options& options)
    : painter_(painter),
      board_(board),
      background_(ToQColor(options.BoardBackground())),
      highlight_(
          ToQColor(LegibleOn(options.BoardBackground(), options.SchemeColours[kHighlightEntry], kShapeContrast))) {}

void GuidePainter::Paint(const Guide& guide) {
    painter_.setBrush(Qt::NoBrush);
    const double half = Pixels(board_, board_.layout.HalfCell);
    for (const MarkedPair& pair : guide.pairs) {
        if (pair.mark == PairMark::Lay) Strokes(pair);
        if (pair.mark == PairMark::None) Cross(pair, half / 3);
        if (pair.mark == PairMark::Wrong) Cross(pair, half);
    }
    for (std::size_t i = guide.islands.size(); i-- > 0;)
        Frame(guide.islands[i], i == 0 ? Qt::SolidLine : Qt::DotLine);
}

void GuidePainter::PaintPair(CellNumber a, CellNumber b) {
    painter_.setBrush(Qt::NoBrush);
    const double half = Pixels(board_, board_.layout.HalfCell) - 1;
    const QPointF corner(half, half);
    const auto cell = [&](CellNumber id) { return QRectF(MiddleOf(id) - corner, MiddleOf(id) + corner); };
    Outlined(highlight_, Qt::SolidLine, [&] { painter_.drawRoundedRect(cell(a) | cell(b), kCorner, kCorner); });
}

/// What is drawn in two colours shows on any background.
void GuidePainter::Outlined(const QColor& colour, Qt::PenStyle style, const std::function<void()>& draw) {
    painter_.setPen(QPen(background_, kPen + kOutline, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    draw();
    painter_.setPen(QPen(colour, kPen, style, Qt::FlatCap, Qt::MiterJoin));
    draw();
}

QPointF GuidePainter::MiddleOf(CellNumber id) const {
    return Pixels(board_, board_.At(id));
}

void GuidePainter::Frame(CellNumber id, Qt::PenStyle style) {
    const double half = Pixels(board_, board_.layout.HalfCell) - 1;
    const QPointF middle = MiddleOf(id);
    const QRectF frame(middle - QPointF(half, half), middle + QPointF(half, half));
    Outlined(highlight_, style, [&] { painter_.drawRoundedRect(frame, kCorner, kCorner); });
}

void GuidePainter::Strokes(const MarkedPair& pair) {
    const double half = Pixels(board_, board_.layout.HalfCell);
    QLineF line(MiddleOf(pair.a), MiddleOf(pair.b));
    if (line.length() <= 2 * half) return;
    line = {line.pointAt(half / line.length()), line.pointAt(1 - half / line.length())};
    const QPointF aside = QPointF(line.dy(), line.dx()) / line.length() * (pair.bridges == 2 ? half / 3 : 0);
    Outlined(highlight_, Qt::DashLine, [&] {
        painter_.drawLine(line.translated(aside));
        if (pair.bridges == 2) painter_.drawLine(line.translated(-aside));
    });
}

void GuidePainter::Cross(const MarkedPair& pair, double half) {
    const QPointF middle = (MiddleOf(pair.a) + MiddleOf(pair.b)) / 2;
    Outlined(highlight_, Qt::SolidLine, [&] {
        painter_.drawLine(middle - QPointF(half, half), middle + QPointF(half, half));
        painter_.drawLine(middle - QPointF(half, -half), middle + QPointF(half, -half));
    });
}

}  // namespace tidewalk
