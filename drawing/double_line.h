// SPDX-License-Identifier: MIT
// The two strokes of a double bridge.
#pragma once

#include "drawing/surface.h"

namespace tidewalk {

/// Two strokes between points of one row or column, the second one `gap` twips to the right of the first or below it,
/// or as much further as the surface needs to keep them apart.
void DrawDoubleLine(Surface& target, double x1, double y1, double x2, double y2, double gap, Colour colour);

}  // namespace tidewalk
