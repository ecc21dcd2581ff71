// SPDX-License-Identifier: MIT
// Making the controls of windows.
#pragma once

#include <QLabel>
#include <QString>

namespace tidewalk {

/// Gives a control the name under which handlers and tests know it, and the one that a screen reader says.
template <class Widget>
Widget* Named(Widget* widget, const char* name, const QString& accessible) {
    widget->setObjectName(name);
    widget->setAccessibleName(accessible);
    return widget;
}

/// A label whose mnemonic leads to the control.
inline QLabel* LabelFor(const QString& text, QWidget* control) {
    auto* const label = new QLabel(text);
    label->setBuddy(control);
    return label;
}

}  // namespace tidewalk
