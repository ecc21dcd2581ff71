// SPDX-License-Identifier: MIT
#include "ui/qt_surface.h"

#include <gtest/gtest.h>

#include <QImage>

namespace tidewalk::test {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);

/// A white picture of 40 by 40 logical pixels with what `draw` draws.
template <class Draw>
QImage Drawn(double ratio, Draw draw) {
    QImage image(QSize(40, 40) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QtSurface surface(96, kTwipsPerPixel);
    surface.SetTarget(&image);
    surface.Clear(kWhite);
    draw(surface);
    surface.Finish();
    return image;
}

/// How many pixels of the row are red through and through, and how many are of any other colour but white.
struct RowCount {
    int red = 0;
    int blurred = 0;
    bool operator==(const RowCount&) const = default;
};

RowCount CountRow(const QImage& image, int row) {
    RowCount count;
    for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, row);
        if (colour == QColor(255, 0, 0))
            ++count.red;
        else if (colour != QColor(Qt::white))
            ++count.blurred;
    }
    return count;
}

TEST(QtSurface, LinesFillWholePixelsAtEveryRatio) {
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        for (const int width : {1, 2, 3}) {
            for (const double x : {150.0, 154.0, 157.5, 161.0}) {
                const QImage image = Drawn(ratio, [&](Surface& surface) {
                    surface.SetDrawWidth(width);
                    surface.Line(x, 30, x, 500, kRed);
                });
                EXPECT_EQ(CountRow(image, image.height() / 2), (RowCount{qRound(width * ratio), 0}))
                    << ratio << " " << width << " " << x;
            }
        }
    }
}

TEST(QtSurface, ABoxLiesOnTheSamePixelsAsLinesAlongItsEdges) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        for (const double at : {150.0, 154.0, 157.5, 161.0}) {
            const QImage box = Drawn(ratio, [&](Surface& surface) { surface.Box(at, at, 400, 400, kRed); });
            const QImage lines = Drawn(ratio, [&](Surface& surface) {
                surface.Line(at, at, 400, at, kRed);
                surface.Line(at, 400, 400, 400, kRed);
                surface.Line(at, at, at, 400, kRed);
                surface.Line(400, at, 400, 400, kRed);
            });
            EXPECT_EQ(box, lines) << ratio << " " << at;
        }
    }
}

TEST(QtSurface, ACircleOfOneColourIsExactlyAsWideAsItIsToBe) {
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = Drawn(ratio, [](Surface& surface) { surface.Circle(300, 300, 150, kRed, kRed); });
        // The outermost pixels are a little lighter, since the edge is round.
        EXPECT_EQ(CountRow(image, qRound(20 * ratio)), (RowCount{qRound(20 * ratio) - 2, 2}));
    }
}

TEST(QtSurface, FilledBoxesOfOneSizeLookTheSameEverywhere) {
    for (double x = 75; x < 90; ++x) {
        const QImage image = Drawn(1, [&](Surface& surface) { surface.FilledBox(x, 75, x + 187.5, 300, kRed); });
        EXPECT_EQ(CountRow(image, 12), (RowCount{13, 0})) << x;
    }
}

TEST(QtSurface, NeighbouringBoxesShareTheirEdgeThoughATwipLiesBetween) {
    for (double x = 150; x < 165; ++x) {
        const QImage image = Drawn(1, [&](Surface& surface) {
            surface.Box(15, 15, x + 1, 500, kRed);
            surface.Box(x, 15, 500, 500, kRed);
        });
        EXPECT_EQ(CountRow(image, 15), (RowCount{3, 0})) << x;
    }
}

TEST(QtSurface, ClearReachesEveryPixelAndNoTargetIsNoHarm) {
    const QImage image = Drawn(1.5, [](Surface& surface) { surface.Clear(kRed); });
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), QColor(255, 0, 0));
    QtSurface nowhere(96, kTwipsPerPixel);
    nowhere.Clear(kWhite);
    nowhere.Line(0, 0, 10, 10, kRed);
    nowhere.SetFontSize(10);
    EXPECT_GT(nowhere.TextExtent("8").width, 80);
    EXPECT_LT(nowhere.TextExtent("8").height, 260);
}

}  // namespace
}  // namespace tidewalk::test
