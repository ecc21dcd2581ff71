// SPDX-License-Identifier: MIT
// Drawing into a text in SVG, with the standard library alone.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "drawing/surface.h"

namespace tidewalk {

/// A surface that writes what is drawn on it as SVG: an element a call, its class named after its kind. The same calls
/// give the same bytes wherever they are made.
///
/// There are no fonts here. What is printed centred is centred by whoever shows the picture; the extent of other text
/// is that of Arial and of the fonts made to its measure, with room for any letter beyond ASCII.
class SvgSurface final : public Surface {
 public:
    /// `twipsPerPen` is what a pen width of 1 stands for.
    explicit SvgSurface(double twipsPerPen) : twipsPerPen_(twipsPerPen) {}

    void SetKind(Kind kind) override { kind_ = kind; }
    void Clear(Colour background) override;
    void SetDrawWidth(int pixels) override { drawWidth_ = pixels; }
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Colour colour) override;
    void Circle(double x, double y, double radius, Colour outline, Colour fill) override;
    void SetFontSize(double points) override { fontSize_ = points; }
    Extent TextExtent(const std::string& text) override;
    void Print(double x, double y, const std::string& text, Colour colour) override;
    void PrintCentred(double x, double y, const std::string& text, Colour colour) override;

    /// The file with what was drawn in `frame`, 96 pixels to the inch and widened to whole ones. Title and description
    /// are for those who cannot see it; what is no character of XML in them is shown as U+FFFD.
    std::string Document(const Area& frame, std::string_view title, std::string_view description) const;

 private:
    std::string Stroke(Colour colour) const;
    void Add(std::string_view element, std::string_view attributes, const std::string& look);
    void AddText(double x, double baseline, const std::string& text, const std::string& look);

    double twipsPerPen_;
    Kind kind_ = Kind::Other;
    int drawWidth_ = 1;
    double fontSize_ = 8;
    std::string paper_;                  ///< the colour of the background, "" for none
    std::map<Kind, std::string> looks_;  ///< of each kind, as it was first drawn
    std::string elements_;
};

}  // namespace tidewalk
