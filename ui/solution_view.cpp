// SPDX-License-Identifier: MIT
#include "ui/solution_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <utility>

#include "drawing/contrast.h"
#include "ui/qt_surface.h"
#include "ui/whole_board.h"

namespace tidewalk {

namespace {

constexpr int kSmallestSide = 200;  ///< in pixels
constexpr int kUsualCell = 26;      ///< in pixels
constexpr double kPen = 2;          ///< in pixels
constexpr double kChosenPen = 4;    ///< in pixels
constexpr double kOutline = 3;      ///< what is seen of the background beside a ring, in pixels
constexpr int kTint = 70;           ///< of 255, inside the chosen ring

/// A board that holds the bridges of the puzzle's links as if they had been laid.
Board BoardWith(const Puzzle& solution) {
    Board board;
    board.puzzle = WithoutLinks(solution);
    board.layout = WholeBoardLayout(solution.Size());
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
    const double scale = ScaleInto(board_, size());
    const QPixmap drawn = DrawWholeBoard(board_, options_, scale, devicePixelRatioF());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF taken = drawn.deviceIndependentSize();
    painter.translate(qRound((width() - taken.width()) / 2), qRound((height() - taken.height()) / 2));
    painter.drawPixmap(0, 0, drawn);
    painter.scale(scale, scale);
    for (std::size_t i = 0; i < differences_.size(); ++i)
        Mark(painter, differences_[i], static_cast<int>(i) == chosen_);
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
