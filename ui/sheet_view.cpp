// SPDX-License-Identifier: MIT
#include "ui/sheet_view.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "drawing/printed_board.h"
#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

constexpr double kEnlarged = 120;  ///< pixels per inch: a quarter larger than on paper
constexpr double kUsual = 48;      ///< pixels per inch, if there is room
constexpr int kMargin = 10;        ///< around the sheet, in pixels
constexpr int kShadow = 3;         ///< in pixels
constexpr int kShadowAlpha = 40;   ///< of 255

}  // namespace

void SheetView::ShowSheet(const Sheet& sheet, Drawing drawing) {
    sheet_ = sheet;
    drawing_ = std::move(drawing);
    drawn_ = QPixmap();
    SetEnlarged(enlarged_);
    update();
}

void SheetView::SetEnlarged(bool enlarged) {
    enlarged_ = enlarged;
    const QSize margins(2 * kMargin, 2 * kMargin);
    setMinimumSize(enlarged ? SizeOf(kEnlarged).toSize() + margins : QSize(0, 0));
    update();
}

QSize SheetView::sizeHint() const {
    return SizeOf(kUsual).toSize() + QSize(2 * kMargin, 2 * kMargin);
}

QSizeF SheetView::SizeOf(double pixelsPerInch) const {
    return QSizeF(sheet_.size.width, sheet_.size.height) * (pixelsPerInch / kTwipsPerInch);
}

/// What lets the sheet be as large as it is to be.
double SheetView::PixelsPerInch() const {
    const QSizeF whole = SizeOf(1);
    if (enlarged_ || whole.isEmpty()) return kEnlarged;
    return std::max(1.0, std::min((width() - 2 * kMargin) / whole.width(), (height() - 2 * kMargin) / whole.height()));
}

void SheetView::Draw(double pixelsPerInch) {
    const double ratio = devicePixelRatioF();
    drawn_ = QPixmap((SizeOf(pixelsPerInch) * ratio).toSize().expandedTo(QSize(1, 1)));
    drawn_.setDevicePixelRatio(ratio);
    drawn_.fill(Qt::white);
    drawnAt_ = pixelsPerInch;
    QtSurface surface(pixelsPerInch, kTwipsPerPen);
    surface.SetTarget(&drawn_);
    if (drawing_) drawing_(surface);
    surface.SetTarget(nullptr);
}

void SheetView::paintEvent(QPaintEvent*) {
    const double pixelsPerInch = PixelsPerInch();
    if (drawn_.isNull() || drawnAt_ != pixelsPerInch || drawn_.devicePixelRatio() != devicePixelRatioF())
        Draw(pixelsPerInch);
    const QSizeF taken = drawn_.deviceIndependentSize();
    const QPoint corner(qRound((width() - taken.width()) / 2), qRound((height() - taken.height()) / 2));
    const QRectF sheet(corner, taken);
    QPainter painter(this);
    for (int away = 1; away <= kShadow; ++away)
        painter.fillRect(sheet.translated(away, away), QColor(0, 0, 0, kShadowAlpha));
    painter.drawPixmap(corner, drawn_);
    painter.setPen(QPen(QColor(0, 0, 0, 2 * kShadowAlpha), 1));
    painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
}

}  // namespace tidewalk
