// SPDX-License-Identifier: MIT
#include "ui/main_window.h"

#include <QApplication>

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

/// All windows wear the scheme's colours, the message box and the side windows too.
void QtMainWindow::ApplyColours() {
    Game* const game = handlers_.game();
    if (game == nullptr || !HasScheme(*game)) return;
    constexpr std::size_t kBackgroundEntry = 2;
    game->Picture1BackColor = game->SchemeColours[kBackgroundEntry];
    QApplication::setPalette(SchemePalette(*game));
    form_.Container().update();
}

}  // namespace tidewalk
