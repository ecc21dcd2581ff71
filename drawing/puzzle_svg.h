// SPDX-License-Identifier: MIT
// The picture of a puzzle or of its solution in SVG.
#pragma once

#include <string>

#include "drawing/render_puzzle.h"

namespace tidewalk {

/// The file with what `RenderPuzzle` draws and a margin of `kPictureMargin` on all sides. Its description tells the
/// islands, and the bridges where they are drawn, row by row.
std::string PuzzleSvg(const Puzzle& puzzle, const RenderRequest& request);

}  // namespace tidewalk
