// SPDX-License-Identifier: MIT
#include "ui/board_touch.h"

#include <QApplication>
#include <QLineF>
#include <QStyleHints>
#include <QTouchEvent>
#include <algorithm>
#include <utility>

#include "board/board_mouse.h"
#include "board/magnify.h"
#include "ui/board_pictures.h"

namespace tidewalk {

namespace {

/// A finger is never as still as a mouse: so many times the drag distance are no movement.
constexpr int kUnsteady = 2;

}  // namespace

BoardTouch::BoardTouch(Handlers& handlers, BoardContainer& container)
    : QObject(&container), handlers_(handlers), container_(container), resting_(this) {
    resting_.setSingleShot(true);
    resting_.setInterval(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    connect(&resting_, &QTimer::timeout, this, &BoardTouch::Rest);
}

void BoardTouch::Take(QTouchEvent& event) {
    event.accept();
    if (!container_.Board().TakesMouse() || event.type() == QEvent::TouchCancel) return CallOff();
    if (event.type() == QEvent::TouchBegin) Press(event);
    const auto& fingers = event.points();
    const auto isUp = [](const QEventPoint& finger) { return finger.state() == QEventPoint::Released; };
    if (event.type() == QEvent::TouchEnd) {
        Release(event);
    } else if (fingers.size() >= 2 && std::none_of(fingers.begin(), fingers.end(), isUp)) {
        Pinch(event);
    } else if (doing_ == Doing::Pinching) {
        // The finger that stays longer is no tap.
        doing_ = Doing::Done;
    } else {
        Move(event);
    }
}

void BoardTouch::Press(const QTouchEvent& event) {
    start_ = event.points().first().globalPosition();
    doing_ = Doing::Pressing;
    container_.Board().setFocus(Qt::MouseFocusReason);
    handlers_.Run([&](Game& game) {
        Picture1_MouseDown(game, MouseButton::Left, container_.Board().OnBoard(start_), container_.InContainer(start_));
    });
    resting_.start();
}

void BoardTouch::Move(const QTouchEvent& event) {
    const QPointF at = event.points().first().globalPosition();
    const double far = kUnsteady * QApplication::startDragDistance();
    if (doing_ == Doing::Pressing && (at - start_).manhattanLength() >= far) doing_ = Doing::Moving;
    if (doing_ != Doing::Moving) return;
    resting_.stop();
    handlers_.Run([&](Game& game) {
        Picture1_MouseMove(game, true, container_.Board().OnBoard(at), container_.InContainer(at));
    });
}

void BoardTouch::Release(const QTouchEvent& event) {
    const Doing was = std::exchange(doing_, Doing::Nothing);
    resting_.stop();
    if (was != Doing::Pressing && was != Doing::Moving) return;
    // What has moved is where it is now; a tap is where it began.
    const QPointF at = was == Doing::Moving ? event.points().first().globalPosition() : start_;
    const bool onBoard = container_.Board().rect().contains(container_.Board().mapFromGlobal(at).toPoint());
    handlers_.Run([&](Game& game) {
        Picture1_MouseUp(game, MouseButton::Left, false, container_.Board().OnBoard(at));
        onBoard ? Picture1_Click(game) : Picture5_MouseUp(game);
    });
}

/// The finger has rested long enough for a click with the right button.
void BoardTouch::Rest() {
    if (doing_ != Doing::Pressing) return;
    doing_ = Doing::Done;
    handlers_.Run([&](Game& game) {
        // Without a press of its own, which would call off what the finger had begun and do nothing else.
        Picture1_MouseUp(game, MouseButton::Right, false, container_.Board().OnBoard(start_));
    });
}

void BoardTouch::Pinch(const QTouchEvent& event) {
    const QLineF fingers(event.points().at(0).globalPosition(), event.points().at(1).globalPosition());
    const double distance = std::max(1.0, fingers.length());
    const Game* const game = handlers_.game();
    if (game == nullptr) return;
    if (doing_ != Doing::Pinching) {
        CallOff();
        doing_ = Doing::Pinching;
    } else {
        const double wanted = game->board.magnification * distance / distance_;
        const Point from = container_.InContainer(middle_);
        const Point to = container_.InContainer(fingers.center());
        handlers_.Run([&](Game& playing) { MagnifyBoard(playing, wanted, from, to); });
    }
    distance_ = distance;
    middle_ = fingers.center();
}

/// Nothing comes of this touch any more.
void BoardTouch::CallOff() {
    resting_.stop();
    if (doing_ == Doing::Pressing || doing_ == Doing::Moving) handlers_.Run(CallOffPress);
    doing_ = Doing::Done;
}

}  // namespace tidewalk
