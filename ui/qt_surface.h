// SPDX-License-Identifier: MIT
// Drawing in twips on anything that Qt can paint on: the board's picture, a picture for the clipboard, a printed page.
#pragma once

#include <QFont>
#include <QPainter>
#include <map>
#include <optional>

#include "drawing/surface.h"
#include "ui/drawing_runs.h"

namespace tidewalk {

inline constexpr double kTwipsPerInch = 1440;
inline constexpr double kTwipsPerPixel = 15;  ///< a logical pixel of the screen, 96 to the inch

/// Twips in the screen's own pixels.
constexpr double Pixels(double twips) {
    return twips / kTwipsPerPixel;
}

QColor ToQColor(Colour colour);
Colour FromQColor(const QColor& colour);

/// A surface over a paint device. Painting begins with the first call that draws and goes on until `Finish`.
class QtSurface final : public Surface {
 public:
    /// `pixelsPerInch` is the device's own resolution in the coordinates that a painter on it starts with: 96 for a
    /// picture of the screen, whatever its device pixel ratio. `twipsPerPenPixel` is what a pen width of 1 stands for.
    QtSurface(double pixelsPerInch, double twipsPerPenPixel);

    /// Another resolution, from the next target on.
    void SetPixelsPerInch(double pixelsPerInch) { pixelsPerInch_ = pixelsPerInch; }

    /// The place in twips that comes to lie in the top left corner of the targets to come; (0, 0) until it is set.
    void SetOrigin(double x, double y) { origin_ = {x, y}; }

    /// What is drawn from now on goes to `target`; with nullptr it goes nowhere. Finishes with the old target.
    void SetTarget(QPaintDevice* target);

    /// Draws all that was to be drawn so far. A target that has pages has to wait for it before the next one begins.
    void Flush();

    /// Ends painting, so that what was drawn can be used. Drawing may go on afterwards.
    void Finish();

    void Clear(Colour background) override;
    void SetDrawWidth(int pixels) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Colour colour) override;
    void Circle(double x, double y, double radius, Colour outline, Colour fill) override;
    double StrokeDistance(double gap) const override;
    void SetFontSize(double points) override;
    Extent TextExtent(const std::string& text) override;
    void Print(double x, double y, const std::string& text, Colour colour) override;

 private:
    bool Begin();
    QPen Pen(Colour colour) const;
    double PenPixels() const;
    double Snapped(double twips) const;
    QPointF SnappedCorner(double x, double y);

    double pixelsPerInch_;
    double twipsPerPenPixel_;
    QPointF origin_;
    QPaintDevice* target_ = nullptr;
    QPainter painter_;
    std::optional<DrawingRuns> runs_;  ///< while painting a PDF file
    double pixelsPerTwip_ = 1;         ///< device pixels, while painting
    int drawWidth_ = 1;
    QFont font_;

    /// Where box edges of this picture came to lie, by their twips.
    using Edges = std::map<int, double>;
    double SnappedEdge(Edges& edges, double twips) const;
    Edges columns_;
    Edges rows_;
};

}  // namespace tidewalk
