// SPDX-License-Identifier: MIT
// The colours of the windows as Qt wants them.
#pragma once

#include <QPalette>

#include "options/window_colours.h"
#include "ui/qt_surface.h"

class QWidget;

namespace tidewalk {

inline Colour ToColour(const QColor& colour) {
    return Rgb(colour.red(), colour.green(), colour.blue());
}

/// Windows, buttons, text boxes and selections in these colours; what is disabled half way to its background.
QPalette PaletteOf(const WindowColours& colours);

/// Gives one window, its frame and everything on it, colours of its own.
void ColourFrame(QWidget& form, const WindowColours& colours);

}  // namespace tidewalk
