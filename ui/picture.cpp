// SPDX-License-Identifier: MIT
#include "ui/picture.h"

#include <cmath>

#include "drawing/render_puzzle.h"
#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kMarginTwips = 200;
constexpr int kLargestSide = 32767;  ///< in pixels, as much as a painter can reach
constexpr double kInchesPerMetre = 39.37;

}  // namespace

QImage MakePicture(const DrawFunction& draw, double scale) {
    QtSurface surface(kPixelsPerInch, kTwipsPerPen);
    // Drawing to nowhere tells how large it becomes.
    const Surface::Area drawn = draw(surface);
    const auto pixels = [scale](double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel * scale)); };
    const QRect cut(QPoint(pixels(drawn.left - kMarginTwips), pixels(drawn.top - kMarginTwips)),
                    QPoint(pixels(drawn.right + kMarginTwips), pixels(drawn.bottom + kMarginTwips)));
    if (cut.right() >= kLargestSide || cut.bottom() >= kLargestSide) return {};
    QImage whole(cut.right() + 1, cut.bottom() + 1, QImage::Format_RGB32);
    if (whole.isNull()) return {};
    whole.fill(Qt::white);
    whole.setDevicePixelRatio(scale);
    surface.SetTarget(&whole);
    draw(surface);
    surface.SetTarget(nullptr);
    QImage picture = whole.copy(cut);
    picture.setDevicePixelRatio(1);
    picture.setDotsPerMeterX(static_cast<int>(std::lround(kPixelsPerInch * scale * kInchesPerMetre)));
    picture.setDotsPerMeterY(picture.dotsPerMeterX());
    return picture;
}

}  // namespace tidewalk
