// SPDX-License-Identifier: MIT
// The picture buttons of the tool bar.
#pragma once

#include <QToolButton>

#include "game/main_window.h"

namespace tidewalk {

/// A button with a picture that tells which mouse button it was clicked with. From the keyboard Space and Enter are the
/// left button, with Shift the right one. `pressed` and `released` tell how long it is held.
class BoxControl final : public QToolButton {
    Q_OBJECT

 public:
    explicit BoxControl(QString iconName, QWidget* parent = nullptr);

 signals:
    void Clicked(tidewalk::MouseButton button);

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    QString iconName_;
    Qt::MouseButton otherButton_ = Qt::NoButton;  ///< the button other than the left one that is held
};

}  // namespace tidewalk
