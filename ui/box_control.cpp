// SPDX-License-Identifier: MIT
#include "ui/box_control.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>
#include <utility>

#include "ui/icons.h"

namespace tidewalk {

namespace {

constexpr int kPictureSide = 24;  ///< in pixels

}  // namespace

BoxControl::BoxControl(QString iconName, QWidget* parent) : QToolButton(parent), iconName_(std::move(iconName)) {
    setIcon(MakeIcon(iconName_, palette()));
    setIconSize({kPictureSide, kPictureSide});
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    // The right button is a click here, and asks for no menu.
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, &QToolButton::clicked, this, [this] { emit Clicked(MouseButton::Left); });
}

void BoxControl::TakeLongPress() {
    held_ = new QTimer(this);
    held_->setSingleShot(true);
    held_->setInterval(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    connect(this, &QToolButton::pressed, held_, qOverload<>(&QTimer::start));
    connect(this, &QToolButton::released, held_, &QTimer::stop);
    connect(held_, &QTimer::timeout, this, [this] {
        // A button that is up already makes no click of its own when it is let go.
        setDown(false);
        emit Clicked(MouseButton::Right);
    });
}

void BoxControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton || event->button() == Qt::MiddleButton) {
        otherButton_ = event->button();
        event->accept();
        return;
    }
    QToolButton::mousePressEvent(event);
}

void BoxControl::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton && event->button() != Qt::MiddleButton) {
        QToolButton::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    const bool clicked = std::exchange(otherButton_, Qt::NoButton) == event->button() && rect().contains(event->pos());
    if (clicked) emit Clicked(event->button() == Qt::RightButton ? MouseButton::Right : MouseButton::Middle);
}

void BoxControl::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool space = event->key() == Qt::Key_Space;
    const bool presses = !event->isAutoRepeat() && (enter || space);
    if (presses && event->modifiers().testFlag(Qt::ShiftModifier)) {
        emit Clicked(MouseButton::Right);
    } else if (presses && enter) {
        click();
    } else {
        QToolButton::keyPressEvent(event);
    }
}

void BoxControl::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) setIcon(MakeIcon(iconName_, palette()));
}

}  // namespace tidewalk
