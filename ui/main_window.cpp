// SPDX-License-Identifier: MIT
#include "ui/main_window.h"

#include "ui/colours.h"

namespace tidewalk {

void QtMainWindow::SetPointer(Pointer pointer) {
    const bool busy = pointer == Pointer::Busy;
    if (busy == busyPointer_) return;
    busyPointer_ = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtMainWindow::ApplyColours() {
    Game* const game = handlers_.game();
    if (game == nullptr) return;
    // All windows take their colours from here; the message box and the options window change some for themselves.
    QApplication::setPalette(PaletteOf(ColoursOfWindows(game->options, *this)));
    form_.Container().update();
}

Colour QtMainWindow::Desktop(DesktopColour colour) const {
    switch (colour) {
        case DesktopColour::WindowFace:
            return ToColour(desktop_.color(QPalette::Window));
        case DesktopColour::ListBackground:
            return ToColour(desktop_.color(QPalette::Base));
        case DesktopColour::ButtonFace:
            return ToColour(desktop_.color(QPalette::Button));
        case DesktopColour::Highlight:
            break;
    }
    return ToColour(desktop_.color(QPalette::Highlight));
}

}  // namespace tidewalk
