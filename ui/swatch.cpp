// SPDX-License-Identifier: MIT
#include "ui/swatch.h"

#include <QPainter>
#include <algorithm>

#include "ui/qt_surface.h"

namespace tidewalk {

Swatch::Swatch(Shape shape, const QString& name, QWidget* parent) : QAbstractButton(parent), shape_(shape) {
    setObjectName(name);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
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
    constexpr int kUsualWidth = 64;   // in pixels
    constexpr int kUsualHeight = 32;  // in pixels
    const int line = fontMetrics().height();
    return {std::max(kUsualWidth, 3 * line), std::max(kUsualHeight, 3 * line / 2)};
}

void Swatch::PaintIsland(QPainter& painter, Colour colour) const {
    const double side = height() * 0.7;
    const QRectF island(width() / 2.0 - side / 2, height() / 2.0 - side / 2, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(colour));
    circle_ ? painter.drawEllipse(island) : painter.drawRect(island);
}

void Swatch::PaintSample(QPainter& painter) const {
    const QPointF left(8, height() / 2.0);
    const QPointF right(width() - 8, height() / 2.0);
    const QColor colour = ToQColor(value_);
    switch (shape_) {
        case Shape::ThinLine:
            painter.setPen(QPen(colour, 1));
            painter.drawLine(left + QPointF(0, 0.5), right + QPointF(0, 0.5));
            break;
        case Shape::Bridge:
            painter.setPen(QPen(colour, 4));
            painter.drawLine(left, right);
            break;
        case Shape::Island:
            PaintIsland(painter, value_);
            break;
        case Shape::Number:
            PaintIsland(painter, node_);
            painter.setPen(colour);
            painter.drawText(rect(), Qt::AlignCenter, "3");
            break;
        case Shape::Fill:
            painter.fillRect(rect(), colour);
            break;
        case Shape::Text:
            painter.setPen(colour);
            painter.drawText(rect(), Qt::AlignCenter, "Abc");
            break;
        case Shape::Outline:
            painter.setPen(QPen(colour, 1));
            for (int i = -2; i <= 2; ++i) {
                const double x = (width() + i * height()) / 2.0;
                painter.drawLine(QPointF(x, 0), QPointF(x, height()));
            }
            painter.drawLine(QPointF(0, height() / 2.0), QPointF(width(), height() / 2.0));
            break;
    }
}

/// A thin frame; a thick one in the picker's hands, with a line of the other end of the scale so that it shows on
/// any colour; the focus as a dotted line.
void Swatch::PaintFrame(QPainter& painter) const {
    const QRectF all(rect());
    const auto frame = [&](const QColor& colour, double width, double inset, Qt::PenStyle style) {
        painter.setPen(QPen(colour, width, style, Qt::FlatCap, Qt::MiterJoin));
        painter.drawRect(all.adjusted(inset, inset, -inset, -inset));
    };
    painter.setBrush(Qt::NoBrush);
    const QColor text = palette().color(QPalette::WindowText);
    if (isChecked()) {
        frame(palette().color(QPalette::Window), 5, 2.5, Qt::SolidLine);
        frame(palette().color(QPalette::Highlight), 3, 1.5, Qt::SolidLine);
    } else {
        frame(text, 1, 0.5, Qt::SolidLine);
    }
    if (!hasFocus()) return;
    frame(palette().color(QPalette::Window), 1, 6.5, Qt::SolidLine);
    frame(text, 1, 6.5, Qt::DotLine);
}

void Swatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ToQColor(background_));
    PaintSample(painter);
    PaintFrame(painter);
}

}  // namespace tidewalk
