// SPDX-License-Identifier: MIT
// The colour picker: a scroll bar for each channel, a swatch of the result, and the system's own colour dialog.
#pragma once

#include <QPointer>
#include <QWidget>
#include <array>
#include <optional>

#include "drawing/surface.h"

class QColorDialog;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollBar;

namespace tidewalk {

class ColPik final : public QWidget {
    Q_OBJECT

 public:
    explicit ColPik(QWidget* parent = nullptr);

    /// The colour that was chosen; nothing before a scroll bar was moved, a colour was set or one was taken in the
    /// dialog.
    std::optional<Colour> Selected() const { return selected_; }

    void Select(Colour colour);

    /// Back to where nothing is chosen.
    void Clear();

 signals:
    /// The player chose another colour, with the bars or in the dialog, which goes on.
    void Picked(Colour colour);

 protected:
    /// A click on the swatch opens the dialog.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

 private:
    void AddChannel(QGridLayout* layout, int channel, const QString& text, const char* name);
    void ShowColour();
    void OpenDialog();

    std::array<QScrollBar*, 3> bars_{};
    std::array<QLabel*, 3> values_{};
    QLabel* swatch_;
    QPointer<QColorDialog> dialog_;
    std::optional<Colour> selected_;
};

}  // namespace tidewalk
