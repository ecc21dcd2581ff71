// SPDX-License-Identifier: MIT
// The colours that the windows wear: what a scheme says, made legible whatever it says.
#pragma once

#include "game/main_window.h"
#include "options/options.h"

namespace tidewalk {

/// The colours of a window and of the controls on it. Every text can be read on its background.
struct WindowColours {
    Colour frame;  ///< the window itself and the frames on it
    Colour frameText;
    Colour face;  ///< buttons
    Colour faceText;
    Colour box;  ///< text boxes, lists and the board's surroundings
    Colour boxText;
    Colour outline;  ///< lines around frames
    Colour highlight;
    Colour highlightText;
};

/// The colours of the main window and the side windows under the scheme of `options`.
WindowColours ColoursOfWindows(const Options& options, const MainWindow& desktop);

/// The colours of the message box.
WindowColours ColoursOfMessages(const Options& options, const MainWindow& desktop);

}  // namespace tidewalk
