// SPDX-License-Identifier: MIT
#include "ui/drawing_runs.h"

#include <QTextLayout>
#include <algorithm>

namespace tidewalk {

namespace {

/// The glyphs of the text as the painter would draw it, from the beginning of its base line at (0, 0). A run that is
/// not valid when the text needs several fonts or does not begin at the left.
QGlyphRun GlyphsOf(const QString& text, const QFont& font, QPaintDevice* device) {
    if (text.isRightToLeft()) return {};
    QTextLayout layout(text, font, device);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1 || !runs.front().rawFont().isValid()) return {};
    QList<QPointF> places = runs.front().positions();
    for (QPointF& place : places)
        place.ry() -= line.ascent();
    runs.front().setPositions(places);
    return runs.front();
}

}  // namespace

void DrawingRuns::Line(const QPen& pen, const QLineF& line) {
    Continue({Shape::Line, pen, {}, 0, {}});
    lines_.push_back(line);
}

void DrawingRuns::Box(const QPen& pen, const QRectF& box) {
    Continue({Shape::Box, pen, {}, 0, {}});
    boxes_.push_back(box);
}

void DrawingRuns::FilledBox(const QColor& colour, const QRectF& box) {
    Continue({Shape::FilledBox, QPen(Qt::NoPen), colour, 0, {}});
    boxes_.push_back(box);
}

void DrawingRuns::Circle(const QPen& pen, const QColor& fill, const QPointF& centre, double radius) {
    Continue({Shape::Circle, pen, fill, radius, {}});
    // The outlines of a run come before its fills: where circles meet, the later one has to begin another run.
    if (Meets(centre, 2 * radius + pen.widthF())) {
        Flush();
        Continue({Shape::Circle, pen, fill, radius, {}});
    }
    points_.push_back(centre);
}

void DrawingRuns::Text(const QFont& font, const QColor& colour, const QPointF& place, const QString& text) {
    const QGlyphRun run = GlyphsOf(text, font, painter_.device());
    if (run.isEmpty()) {
        Flush();
        painter_.setFont(font);
        painter_.setPen(colour);
        painter_.drawText(place, text);
        return;
    }
    Continue({Shape::Text, QPen(colour), {}, 0, run.rawFont()});
    glyphs_ += run.glyphIndexes();
    for (const QPointF& glyph : run.positions())
        points_.push_back(place + glyph);
}

/// What comes looks like this.
void DrawingRuns::Continue(const Look& look) {
    if (look == look_) return;
    Flush();
    look_ = look;
}

bool DrawingRuns::Meets(const QPointF& centre, double distance) const {
    return std::any_of(points_.begin(), points_.end(), [&](const QPointF& other) {
        const QPointF between = other - centre;
        return QPointF::dotProduct(between, between) < distance * distance;
    });
}

/// Points of a round pen are discs, which take the least room: one with the outline, and upon it one without.
void DrawingRuns::DrawCircles() {
    const bool outlined = look_.pen.style() != Qt::NoPen;
    const double outline = outlined ? look_.pen.widthF() : 0;
    const auto discs = [&](const QBrush& colour, double diameter) {
        painter_.setPen(QPen(colour, diameter, Qt::SolidLine, Qt::RoundCap));
        painter_.drawPoints(points_.constData(), static_cast<int>(points_.size()));
    };
    const double inside = 2 * look_.radius - outline;
    if (outlined) discs(look_.pen.brush(), 2 * look_.radius + outline);
    if (inside > 0) discs(look_.fill, inside);
}

void DrawingRuns::DrawText() {
    QGlyphRun run;
    run.setRawFont(look_.font);
    run.setGlyphIndexes(glyphs_);
    run.setPositions(points_);
    painter_.setPen(look_.pen);
    painter_.drawGlyphRun({}, run);
}

void DrawingRuns::Flush() {
    if (look_.shape == Shape::Circle) {
        DrawCircles();
    } else if (look_.shape == Shape::Text) {
        DrawText();
    } else if (look_.shape != Shape::None) {
        painter_.setPen(look_.pen);
        painter_.setBrush(look_.fill.isValid() ? QBrush(look_.fill) : QBrush(Qt::NoBrush));
        painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
        painter_.drawRects(boxes_.data(), static_cast<int>(boxes_.size()));
    }
    look_ = {};
    lines_.clear();
    boxes_.clear();
    points_.clear();
    glyphs_.clear();
}

}  // namespace tidewalk
