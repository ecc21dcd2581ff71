// SPDX-License-Identifier: MIT
#include "drawing/double_line.h"

namespace tidewalk {

void DrawDoubleLine(Surface& target, double x1, double y1, double x2, double y2, double gap, Colour colour) {
    const double distance = target.StrokeDistance(gap);
    if (x1 == x2) {
        target.Line(x1, y1, x1, y2, colour);
        target.Line(x1 + distance, y1, x1 + distance, y2, colour);
    }
    if (y1 == y2) {
        target.Line(x1, y1, x2, y1, colour);
        target.Line(x1, y1 + distance, x2, y1 + distance, colour);
    }
}

}  // namespace tidewalk
