// SPDX-License-Identifier: MIT
#include "ui/swatch.h"

#include <QPainter>

#include "ui/qt_surface.h"

namespace tidewalk {

Swatch::Swatch(Shape shape, const QString& name, QWidget* parent) : QAbstractButton(parent), shape_(shape) {
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void Swatch::Show(Colour value, Colour background, Colour node, bool circle) {
    value_ = value;
    background_ = background;
    node_ = node;
    circle_ = circle;
    setAccessibleDescription(ToQColor(value).name());
    update();
}

QSize Swatch::sizeHint() const {
    return {72, 32};
}

void Swatch::PaintIsland(QPainter& painter, Colour colour) const {
    const double side = height() * 0.7;
    const QRectF island(width() / 2.0 - side / 2, height() / 2.0 - side / 2, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(colour));
    circle_ ? painter.drawEllipse(island) : painter.drawRect(island);
}

void Swatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ToQColor(background_));
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    const QPointF left(8, height() / 2.0);
    const QPointF right(width() - 8, height() / 2.0);
    switch (shape_) {
        case Shape::ThinLine:
            painter.setPen(QPen(ToQColor(value_), 1));
            painter.drawLine(left + QPointF(0, 0.5), right + QPointF(0, 0.5));
            break;
        case Shape::Bridge:
            painter.setPen(QPen(ToQColor(value_), 4));
            painter.drawLine(left, right);
            break;
        case Shape::Island:
            PaintIsland(painter, value_);
            break;
        case Shape::Number:
            PaintIsland(painter, node_);
            painter.setPen(ToQColor(value_));
            painter.drawText(rect(), Qt::AlignCenter, "3");
            break;
    }
}

}  // namespace tidewalk
