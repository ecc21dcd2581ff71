// SPDX-License-Identifier: MIT
// A picture that is as large as what is drawn on it, as pixels and as a file.
#pragma once

#include <QImage>

#include "game/output.h"

namespace tidewalk {

/// The picture that `draw` draws, cut to it and an equal margin on all sides, at 96 pixels an inch times `scale`. A
/// null picture when it would be too large for the memory or the system.
QImage MakePicture(const DrawFunction& draw, double scale);

/// Makes the picture the content of the file at `path`: in SVG or PDF if the name ends in ".svg" or ".pdf", else in
/// PNG, with the pixels of `MakePicture`. "" on success; else the reason for the player, and the file stays as it was.
QString WritePicture(const QString& path, const PuzzlePicture& picture, double scale);

}  // namespace tidewalk
