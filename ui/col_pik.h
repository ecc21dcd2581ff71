// SPDX-License-Identifier: MIT
// The colour picker: a scroll bar for each channel and a swatch of the result.
#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "drawing/surface.h"

class QGridLayout;
class QLabel;
class QScrollBar;

namespace tidewalk {

class ColPik final : public QWidget {
    Q_OBJECT

 public:
    explicit ColPik(QWidget* parent = nullptr);

    /// The colour that was chosen; nothing before a scroll bar was moved or a colour was set.
    std::optional<Colour> Selected() const { return selected_; }

    void Select(Colour colour);

    /// Back to where nothing is chosen.
    void Clear();

 private:
    void AddChannel(QGridLayout* layout, int channel, const QString& text, const char* name);
    void ShowColour();

    std::array<QScrollBar*, 3> bars_{};
    std::array<QLabel*, 3> values_{};
    QLabel* swatch_;
    std::optional<Colour> selected_;
};

}  // namespace tidewalk
