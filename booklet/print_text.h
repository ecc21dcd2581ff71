// SPDX-License-Identifier: MIT
// Lines of text on a page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"

namespace tidewalk {

/// Prints a line whose middle lies at `x` and whose top at `y`, in `points`, or in smaller ones down to `smallest`
/// where it would be wider than `width`. What is still too wide then loses its end. Returns its height in
/// twips, 0 for no text.
double PrintLine(Surface& surface, double x, double y, const std::string& text, double points, double smallest,
                 double width);

/// The text in lines of the font that is set, broken at blanks, each no wider than `width` unless it is one word.
std::vector<std::string> Wrapped(Surface& surface, std::string_view text, double width);

}  // namespace tidewalk
