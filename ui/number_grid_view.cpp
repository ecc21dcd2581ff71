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
    setAccessibleDescription(
        tr("Grid of island numbers: digits set islands, a full stop or a blank sets water, arrow keys move"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Show();
}

/// Whole pixels of the screen, so that all lines of the grid look alike whatever the screen's pixel ratio.
double NumberGridView::Whole(double pixels) const {
    return std::floor(pixels * devicePixelRatioF()) / devicePixelRatioF();
}

double NumberGridView::LineWidth() const {
    return std::max(1.0, std::round(devicePixelRatioF())) / devicePixelRatioF();
}

double NumberGridView::CellSide() const {
    constexpr double kLargestSide = 48;
    const double line = LineWidth();
    return Whole(std::min({(width() - line) / grid_.Cols(), (height() - line) / grid_.Rows(), kLargestSide}));
}

/// Pixels of the screen are counted from the window's corner.
QPointF NumberGridView::Corner() const {
    const double side = CellSide();
    const QPointF here = mapTo(window(), QPointF());
    const auto place = [&](double begin, double room) { return Whole(begin + room / 2) - begin; };
    return {place(here.x(), width() - side * grid_.Cols()), place(here.y(), height() - side * grid_.Rows())};
}

/// The cell with the lines on all its sides, which it shares with its neighbours.
QRectF NumberGridView::CellRect(int row, int col) const {
    const double side = CellSide();
    return {Corner() + QPointF((col - 1) * side, (row - 1) * side), QSizeF(side + LineWidth(), side + LineWidth())};
}

void NumberGridView::PaintCell(QPainter& painter, int row, int col) const {
    const QRectF cell = CellRect(row, col);
    const double line = LineWidth();
    const bool isCursor = grid_.Cursor() == CellPlace{row, col};
    const bool isMarked = isCursor && hasFocus();
    const auto fill = [&](double inset, QPalette::ColorRole role) {
        painter.fillRect(cell.adjusted(inset, inset, -inset, -inset), palette().color(role));
    };
    fill(0, QPalette::PlaceholderText);
    if (isCursor) fill(line, QPalette::Highlight);
    fill(isCursor ? 3 * line : line, isMarked ? QPalette::Highlight : QPalette::Base);
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
    for (int row = 1; row <= grid_.Rows(); ++row) {
        for (int col = 1; col <= grid_.Cols(); ++col)
            PaintCell(painter, row, col);
    }
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
    Show();
}

/// The cursor's cell is the widget's name, so that screen readers read it out whenever it is another one.
void NumberGridView::Show() {
    const auto [row, col] = grid_.Cursor();
    const int number = grid_.At(row, col);
    setAccessibleName(
        tr("row %1, column %2, %3").arg(row).arg(col).arg(number == 0 ? tr("water") : QString::number(number)));
    update();
}

void NumberGridView::mousePressEvent(QMouseEvent* event) {
    const QPointF at = event->position() - Corner();
    const double side = CellSide();
    const int row = static_cast<int>(std::floor(at.y() / side)) + 1;
    const int col = static_cast<int>(std::floor(at.x() / side)) + 1;
    if (row < 1 || row > grid_.Rows() || col < 1 || col > grid_.Cols()) return;
    grid_.MoveTo(row, col);
    Show();
}

void NumberGridView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    Show();
}

void NumberGridView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace tidewalk
