// SPDX-License-Identifier: MIT
// The picture buttons of the tool bar.
#pragma once

#include <QToolButton>

#include "game/main_window.h"

namespace tidewalk {

/// A button with a picture that tells which mouse button it was clicked with. From the keyboard Space and Enter are the
/// left button, with Shift the right one, and so may be a long press: a finger has one button only. `pressed` and
/// `released` tell how long it is held.
class BoxControl final : public QToolButton {
    Q_OBJECT

 public:
    explicit BoxControl(QString iconName, QWidget* parent = nullptr);

    /// From now on, holding the left button down is a click with the right one.
    void TakeLongPress();

 signals:
    void Clicked(tidewalk::MouseButton button);

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    QString iconName_;
    QTimer* held_ = nullptr;                      ///< runs while it is held down, if that means anything
    Qt::MouseButton otherButton_ = Qt::NoButton;  ///< the button other than the left one that is held
};

}  // namespace tidewalk
