// SPDX-License-Identifier: MIT
#include "drawing/contrast.h"

#include <algorithm>
#include <cmath>

namespace tidewalk {

namespace {

double LinearLight(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
    return 0.2126 * LinearLight(RedOf(colour)) + 0.7152 * LinearLight(GreenOf(colour)) +
           0.0722 * LinearLight(BlueOf(colour));
}

}  // namespace

double Contrast(Colour a, Colour b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

Colour Mixed(Colour a, Colour b, double share) {
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return Rgb(channel(RedOf(a), RedOf(b)), channel(GreenOf(a), GreenOf(b)), channel(BlueOf(a), BlueOf(b)));
}

Colour LegibleOn(Colour background, Colour wanted, double ratio) {
    if (Contrast(background, wanted) >= ratio) return wanted;
    return Contrast(background, kBlack) >= Contrast(background, kWhite) ? kBlack : kWhite;
}

}  // namespace tidewalk
