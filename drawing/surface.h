// SPDX-License-Identifier: MIT
// The one drawing surface: the board's picture, the clipboard's picture, a printed page, a picture in SVG.
#pragma once

#include <cstdint>
#include <string>

namespace tidewalk {

/// A colour with red in the lowest byte, then green, then blue: 0x00BBGGRR.
using Colour = std::uint32_t;

/// The colour of three channels, each 0..255.
constexpr Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>(red & 0xFF) | static_cast<Colour>(green & 0xFF) << 8 |
           static_cast<Colour>(blue & 0xFF) << 16;
}
constexpr int RedOf(Colour colour) {
    return static_cast<int>(colour & 0xFF);
}
constexpr int GreenOf(Colour colour) {
    return static_cast<int>(colour >> 8 & 0xFF);
}
constexpr int BlueOf(Colour colour) {
    return static_cast<int>(colour >> 16 & 0xFF);
}

inline constexpr Colour kBlack = Rgb(0, 0, 0);
inline constexpr Colour kWhite = Rgb(255, 255, 255);

/// A point, in which letters are measured, is 1/72 inch.
inline constexpr double kTwipsPerPoint = 20;

/// What something that is drawn stands for.
enum class Kind { Other, Title, Heading, Footer, Bridge, DoubleBridge, Island, Number };

/// Something to draw on. Lengths are twips (1/1440 inch) from the top left corner, pen widths pixels.
class Surface {
 public:
    struct Extent {
        double width = 0;
        double height = 0;
    };

    /// A rectangle between two corners, in twips.
    struct Area {
        double left = 0;
        double top = 0;
        double right = 0;
        double bottom = 0;
    };

    virtual ~Surface() = default;

    /// What everything to come stands for. Only what writes the drawing down has to know.
    virtual void SetKind(Kind) {}

    /// Wipes everything with one colour.
    virtual void Clear(Colour background) = 0;

    /// The width of the lines and outlines to come, in pixels, at least 1.
    virtual void SetDrawWidth(int pixels) = 0;
    virtual void Line(double x1, double y1, double x2, double y2, Colour colour) = 0;
    virtual void Box(double x1, double y1, double x2, double y2, Colour colour) = 0;
    virtual void FilledBox(double x1, double y1, double x2, double y2, Colour colour) = 0;
    /// A filled circle with an outline.
    virtual void Circle(double x, double y, double radius, Colour outline, Colour fill) = 0;

    /// How far apart the strokes of a double line have to lie, middle to middle, so that they stay two strokes with the
    /// current pen and look alike wherever they are: `gap` or a little more, in twips.
    virtual double StrokeDistance(double gap) const { return gap; }

    /// The size of the text to come, in points.
    virtual void SetFontSize(double points) = 0;
    virtual Extent TextExtent(const std::string& text) = 0;
    /// Draws the text with the top left corner of its extent at (x, y).
    virtual void Print(double x, double y, const std::string& text, Colour colour) = 0;
    /// Draws the text with the middle of its extent at (x, y).
    virtual void PrintCentred(double x, double y, const std::string& text, Colour colour) {
        const Extent extent = TextExtent(text);
        Print(x - extent.width / 2, y - extent.height / 2, text, colour);
    }
};

}  // namespace tidewalk
