// SPDX-License-Identifier: MIT
#include "ui/number_grid_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tidewalk {

NumberGridView::NumberGridView(NumberGrid& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Grid of island numbers"));
    setAccessibleDescription(tr("Digits set islands, a full stop or a blank sets water, arrow keys move"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double NumberGridView::CellSide() const {
    constexpr double kLargestSide = 48;
    return std::min({(width() - 2.0) / grid_.Cols(), (height() - 2.0) / grid_.Rows(), kLargestSide});
}

QPointF NumberGridView::Corner() const {
    const double side = CellSide();
    return {std::floor((width() - side * grid_.Cols()) / 2), std::floor((height() - side * grid_.Rows()) / 2)};
}

QRectF NumberGridView::CellRect(int row, int col) const {
    const double side = CellSide();
    return {Corner() + QPointF((col - 1) * side, (row - 1) * side), QSizeF(side, side)};
}

void NumberGridView::PaintCell(QPainter& painter, int row, int col) const {
    const QRectF cell = CellRect(row, col);
    const bool isCursor = grid_.Cursor() == CellPlace{row, col};
    const bool isMarked = isCursor && hasFocus();
    painter.fillRect(cell, palette().color(isMarked ? QPalette::Highlight : QPalette::Base));
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1));
    painter.drawRect(cell);
    if (isCursor) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(cell.adjusted(1.5, 1.5, -1.5, -1.5));
    }
    const int number = grid_.At(row, col);
    if (number == 0) return;
    painter.setPen(palette().color(isMarked ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(cell, Qt::AlignCenter, QString::number(number));
}

void NumberGridView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont digits = font();
    digits.setPixelSize(std::max(6, static_cast<int>(CellSide() * 0.55)));
    painter.setFont(digits);
    painter.translate(0.5, 0.5);
    for (int row = 1; row <= grid_.Rows(); ++row) {
        for (int col = 1; col <= grid_.Cols(); ++col)
            PaintCell(painter, row, col);
    }
    // The neighbours' outlines must not cover the cursor's.
    PaintCell(painter, grid_.Cursor().row, grid_.Cursor().col);
}

bool NumberGridView::TakeKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
            grid_.MoveBy(0, -1);
            return true;
        case Qt::Key_Right:
            grid_.MoveBy(0, 1);
            return true;
        case Qt::Key_Up:
            grid_.MoveBy(-1, 0);
            return true;
        case Qt::Key_Down:
            grid_.MoveBy(1, 0);
            return true;
        case Qt::Key_Home:
            grid_.MoveTo(grid_.Cursor().row, 1);
            return true;
        case Qt::Key_End:
            grid_.MoveTo(grid_.Cursor().row, grid_.Cols());
            return true;
        case Qt::Key_Backspace:
            grid_.Backspace();
            return true;
        case Qt::Key_Delete:
            grid_.Delete();
            return true;
        default:
            return event.text().size() == 1 && grid_.Type(event.text().front().toLatin1());
    }
}

void NumberGridView::keyPressEvent(QKeyEvent* event) {
    const auto strange = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (strange || !TakeKey(*event)) return QWidget::keyPressEvent(event);
    event->accept();
    update();
}

void NumberGridView::mousePressEvent(QMouseEvent* event) {
    const QPointF at = event->position() - Corner();
    const double side = CellSide();
    const int row = static_cast<int>(std::floor(at.y() / side)) + 1;
    const int col = static_cast<int>(std::floor(at.x() / side)) + 1;
    if (row < 1 || row > grid_.Rows() || col < 1 || col > grid_.Cols()) return;
    grid_.MoveTo(row, col);
    update();
}

void NumberGridView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void NumberGridView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace tidewalk
