// SPDX-License-Identifier: MIT
// A picture that is as large as what is drawn on it.
#pragma once

#include <QImage>

#include "game/output.h"

namespace tidewalk {

/// The picture that `draw` draws, cut to it and an equal margin on all sides, at 96 pixels an inch times `scale`. A
/// null picture when it would be too large for the memory or the system.
QImage MakePicture(const DrawFunction& draw, double scale);

}  // namespace tidewalk
