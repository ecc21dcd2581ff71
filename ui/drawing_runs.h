// SPDX-License-Identifier: MIT
// Drawing what looks alike with one call.
#pragma once

#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QRawFont>
#include <QRectF>
#include <vector>

namespace tidewalk {

/// Gathers what is drawn one after the other in one look, and draws it with one call when something else comes or at
/// `Flush`. A PDF file says the look anew with every call and a circle in four curves; gathered, it takes a third of
/// the room. All lengths are the painter's own; the painter is active from here to the last flush.
class DrawingRuns {
 public:
    explicit DrawingRuns(QPainter& painter) : painter_(painter) {}

    void Line(const QPen& pen, const QLineF& line);
    void Box(const QPen& pen, const QRectF& box);
    void FilledBox(const QColor& colour, const QRectF& box);
    /// A disc of `fill` with an outline of the pen along its edge, or without one if there is no pen.
    void Circle(const QPen& pen, const QColor& fill, const QPointF& centre, double radius);
    /// The text with its base line beginning at `place`.
    void Text(const QFont& font, const QColor& colour, const QPointF& place, const QString& text);

    /// Draws what is still to be drawn.
    void Flush();

 private:
    enum class Shape { None, Line, Box, FilledBox, Circle, Text };

    /// What all of a run have in common.
    struct Look {
        Shape shape = Shape::None;
        QPen pen;
        QColor fill;
        double radius = 0;
        QRawFont font;

        bool operator==(const Look&) const = default;
    };

    void Continue(const Look& look);
    bool Meets(const QPointF& centre, double distance) const;
    void DrawCircles();
    void DrawText();

    QPainter& painter_;
    Look look_;
    std::vector<QLineF> lines_;
    std::vector<QRectF> boxes_;
    QList<QPointF> points_;  ///< the centres of circles, or the places of glyphs
    QList<quint32> glyphs_;
};

}  // namespace tidewalk
