// SPDX-License-Identifier: MIT
// The grid of the number editor on the screen.
#pragma once

#include <QWidget>

#include "model/number_grid.h"

namespace tidewalk {

/// Shows a grid and its cursor, and takes digits, arrow keys, Backspace, Delete, Home, End and clicks.
class NumberGridView final : public QWidget {
    Q_OBJECT

 public:
    explicit NumberGridView(NumberGrid& grid, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {480, 480}; }
    QSize minimumSizeHint() const override { return {250, 250}; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    bool TakeKey(const QKeyEvent& event);
    void Show();
    double Whole(double pixels) const;
    double LineWidth() const;
    /// The side of a cell in pixels, and where the grid begins.
    double CellSide() const;
    QPointF Corner() const;
    QRectF CellRect(int row, int col) const;
    void PaintCell(QPainter& painter, int row, int col) const;

    NumberGrid& grid_;
};

}  // namespace tidewalk
