// SPDX-License-Identifier: MIT
// The samples of colours in the options window.
#pragma once

#include <QAbstractButton>

#include "drawing/surface.h"

namespace tidewalk {

/// A piece of the board or of a window that shows one of its colours. It can be clicked, and wears a ring while the
/// picker changes it, which is while it is checked.
class Swatch final : public QAbstractButton {
    Q_OBJECT

 public:
    enum class Shape { ThinLine, Bridge, Island, Number, Fill, Text, Outline };

    Swatch(Shape shape, const QString& name, QWidget* parent = nullptr);

    /// The colour that the swatch stands for.
    Colour Value() const { return value_; }

    /// Shows `value` on something of the colour `background`; `node` is the islands' colour.
    void Show(Colour value, Colour background, Colour node, bool circle);

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void PaintSample(QPainter& painter) const;
    void PaintIsland(QPainter& painter, Colour colour) const;
    void PaintFrame(QPainter& painter) const;

    Shape shape_;
    Colour value_ = 0;
    Colour background_ = 0;
    Colour node_ = 0;
    bool circle_ = false;
};

}  // namespace tidewalk
