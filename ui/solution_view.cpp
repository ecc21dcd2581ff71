// SPDX-License-Identifier: MIT
#include "ui/solution_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "board/drawing.h"
#include "drawing/contrast.h"
#include "model/numbers.h"
#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr double kMargin = 0.15;    ///< around the cells, in cells
constexpr int kSmallestSide = 200;  ///< in pixels
constexpr int kUsualCell = 26;      ///< in pixels
constexpr double kPen = 2;          ///< in pixels
constexpr double kChosenPen = 4;    ///< in pixels
constexpr double kOutline = 3;      ///< what is seen of the background beside a ring, in pixels
constexpr int kTint = 70;           ///< of 255, inside the chosen ring

/// Large cells with the same margin on all sides; the picture is fitted to the widget in the end.
BoardLayout LayoutOf(BoardSize size) {
    BoardLayout layout = LayoutBoard(size, kLargestCell, {});
    const double cell = layout.CellSize;
    layout.OriginX = layout.OriginY = RoundHalfEven(kMargin * cell) + layout.HalfCell;
    layout.Picture1 = {0, 0, (size.cols + 2 * kMargin) * cell, (size.rows + 2 * kMargin) * cell};
    return layout;
}

/// A board that holds the bridges of the puzzle's links as if they had been laid.
Board BoardWith(const Puzzle& solution) {
    Board board;
    board.puzzle = WithoutLinks(solution);
    board.layout = LayoutOf(solution.Size());
    for (const Link& link : solution.LinkList)
        board.BridgeState.Set(link.first, link.second, link.Bridges());
    return board;
}

}  // namespace

SolutionView::SolutionView(const Puzzle& solution, std::vector<Difference> differences, Options options)
    : board_(BoardWith(solution)), differences_(std::move(differences)), options_(std::move(options)) {
    // All islands have their bridges here, and paler ones would say nothing.
    options_.ShowFinished = false;
    setMinimumSize(kSmallestSide, kSmallestSide);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize SolutionView::sizeHint() const {
    const BoardSize size = board_.layout.size;
    return QSize(size.cols, size.rows) * kUsualCell;
}

void SolutionView::Choose(int difference) {
    chosen_ = difference;
    update();
}

void SolutionView::paintEvent(QPaintEvent*) {
    const QSizeF whole(Pixels(board_.layout.Picture1.width), Pixels(board_.layout.Picture1.height));
    const double scale = std::min(width() / whole.width(), height() / whole.height());
    const QPixmap drawn = Drawn(scale);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF size = drawn.deviceIndependentSize();
    painter.translate(qRound((width() - size.width()) / 2), qRound((height() - size.height()) / 2));
    painter.drawPixmap(0, 0, drawn);
    painter.scale(scale, scale);
    for (std::size_t i = 0; i < differences_.size(); ++i)
        Mark(painter, differences_[i], static_cast<int>(i) == chosen_);
}

/// The board at this scale, in the screen's own pixels.
QPixmap SolutionView::Drawn(double scale) const {
    const QSizeF whole(Pixels(board_.layout.Picture1.width), Pixels(board_.layout.Picture1.height));
    const double ratio = devicePixelRatioF();
    QPixmap drawn((whole * scale * ratio).toSize().expandedTo({1, 1}));
    drawn.setDevicePixelRatio(ratio);
    QtSurface surface(kScreenPixelsPerInch * scale, kTwipsPerPixel);
    surface.SetTarget(&drawn);
    BoardDrawing(surface, board_, options_).RedrawBoard(false);
    surface.SetTarget(nullptr);
    return drawn;
}

void SolutionView::Mark(QPainter& painter, const Difference& difference, bool chosen) const {
    const Point a = board_.At(difference.a);
    const Point b = board_.At(difference.b);
    const double half = Pixels(board_.layout.HalfCell);
    // From island to island, wide enough for a double bridge; between islands that touch a short ring remains.
    const QRectF between = QRectF(QPointF(Pixels(a.x), Pixels(a.y)), QPointF(Pixels(b.x), Pixels(b.y)));
    const double aside = half * 0.65;
    const double along = half * 0.9;
    const bool acrossRows = a.x == b.x;
    const QRectF ring =
        acrossRows ? between.adjusted(-aside, along, aside, -along) : between.adjusted(along, -aside, -along, aside);
    const QColor background = ToQColor(options_.BoardBackground());
    const QColor colour =
        ToQColor(LegibleOn(options_.BoardBackground(), options_.SchemeColours[kHighlightEntry], kShapeContrast));
    const double pen = chosen ? kChosenPen : kPen;
    const bool bare = board_.BridgeState(difference.a, difference.b) == 0;
    const auto draw = [&](const QColor& with, double width, Qt::PenStyle style) {
        QPen stroke(with, width, style, Qt::FlatCap);
        stroke.setCosmetic(true);
        painter.setPen(stroke);
        painter.drawRoundedRect(ring, aside / 2, aside / 2);
    };
    painter.setBrush(Qt::NoBrush);
    draw(background, pen + kOutline, Qt::SolidLine);
    QColor tint = colour;
    tint.setAlpha(kTint);
    if (chosen) painter.setBrush(tint);
    draw(colour, pen, bare ? Qt::DashLine : Qt::SolidLine);
}

}  // namespace tidewalk
