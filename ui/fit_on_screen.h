// SPDX-License-Identifier: MIT
// Windows on screens that are too small for them.
#pragma once

class QDialog;

namespace tidewalk {

/// Where the finished window needs more room than the screen has, what is in it is scrolled from now on. The window is
/// not made larger.
void FitOnScreen(QDialog& dialog);

}  // namespace tidewalk
