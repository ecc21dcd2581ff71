// SPDX-License-Identifier: MIT
// Playing with the fingers.
#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>

#include "ui/handlers.h"

class QTouchEvent;

namespace tidewalk {

class BoardContainer;

/// Turns touches of the board and its container into what the mouse does: a tap is a click, a finger that goes on draws
/// a bridge or moves the board, and one that rests is a click with the right button. Two fingers magnify and move the
/// board; what the first one had begun is called off.
class BoardTouch final : public QObject {
    Q_OBJECT

 public:
    BoardTouch(Handlers& handlers, BoardContainer& container);

    /// Takes any event of a touch.
    void Take(QTouchEvent& event);

 private:
    enum class Doing { Nothing, Pressing, Moving, Pinching, Done };

    void Press(const QTouchEvent& event);
    void Move(const QTouchEvent& event);
    void Release(const QTouchEvent& event);
    void Pinch(const QTouchEvent& event);
    void Rest();
    void CallOff();

    Handlers& handlers_;
    BoardContainer& container_;
    QTimer resting_;
    Doing doing_ = Doing::Nothing;
    QPointF start_;  ///< of the first finger, on the screen
    // The two fingers when they were seen last, or came together.
    double distance_ = 0;  ///< on the screen, in pixels
    QPointF middle_;       ///< on the screen
};

}  // namespace tidewalk
