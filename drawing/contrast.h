// SPDX-License-Identifier: MIT
// How well one colour can be told from another.
#pragma once

#include "drawing/surface.h"

namespace tidewalk {

inline constexpr double kTextContrast = 4.5;   ///< what text needs against its background
inline constexpr double kShapeContrast = 3.0;  ///< what lines and islands need

/// The ratio of the colours' luminances after WCAG 2: 1 for equal colours up to 21 for black and white.
double Contrast(Colour a, Colour b);

/// A colour between `a` and `b`: `share` of `b`, 0..1, and the rest of `a`.
Colour Mixed(Colour a, Colour b, double share);

/// `wanted` if its contrast to `background` is at least `ratio`, otherwise black or white, whichever is read better.
Colour LegibleOn(Colour background, Colour wanted, double ratio = kTextContrast);

}  // namespace tidewalk
