// SPDX-License-Identifier: MIT
// The colours of the windows, made from the active scheme.
#pragma once

#include <QPalette>

#include "model/options.h"

namespace tidewalk {

/// True once a scheme was read: no scheme has black for both its backgrounds.
bool HasScheme(const Options& options);

/// Buttons, frames and labels in the scheme's face colour, lists, text boxes and the board in its background, and all
/// texts in what can be read on them.
QPalette SchemePalette(const Options& options);

/// Black or white, whichever reads better on `background`.
QColor ReadableOn(const QColor& background);

}  // namespace tidewalk
