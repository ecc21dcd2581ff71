// SPDX-License-Identifier: MIT
#include "ui/qt_surface.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <algorithm>
#include <cmath>

namespace tidewalk {

namespace {}  // namespace

QColor ToQColor(Colour colour) {
    return {RedOf(colour), GreenOf(colour), BlueOf(colour)};
}

Colour FromQColor(const QColor& colour) {
    return Rgb(colour.red(), colour.green(), colour.blue());
}

QtSurface::QtSurface(double pixelsPerInch, double twipsPerPenPixel)
    : pixelsPerInch_(pixelsPerInch), twipsPerPenPixel_(twipsPerPenPixel), font_("Arial") {
    font_.setStyleHint(QFont::SansSerif);
    SetFontSize(8);
}

void QtSurface::SetTarget(QPaintDevice* target) {
    Finish();
    target_ = target;
}

void QtSurface::Flush() {
    if (runs_) runs_->Flush();
}

void QtSurface::Finish() {
    Flush();
    runs_.reset();
    if (painter_.isActive()) painter_.end();
}

bool QtSurface::Begin() {
    if (painter_.isActive()) return true;
    if (target_ == nullptr || !painter_.begin(target_)) return false;
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter_.scale(pixelsPerInch_ / kTwipsPerInch, pixelsPerInch_ / kTwipsPerInch);
    painter_.translate(-origin_);
    pixelsPerTwip_ = painter_.deviceTransform().m11();
    if (painter_.paintEngine()->type() == QPaintEngine::Pdf) runs_.emplace(painter_);
    return true;
}

/// The pen's width in whole pixels of the device.
double QtSurface::PenPixels() const {
    return std::max(1.0, std::round(drawWidth_ * twipsPerPenPixel_ * pixelsPerTwip_));
}

/// The nearest place where a line of the current pen fills whole pixels: their middle for odd widths, their edge for
/// even ones.
double QtSurface::Snapped(double twips) const {
    // A hair more than what arithmetic may lose: places a whole number of pixels apart stay so.
    constexpr double kHair = 1e-6;
    const double pixels = twips * pixelsPerTwip_ + kHair;
    const bool odd = std::fmod(PenPixels(), 2) == 1;
    return (odd ? std::floor(pixels) + 0.5 : std::round(pixels)) / pixelsPerTwip_;
}

/// Half a cell is a rounded number: the common edge of two cells may lie a twip further for one than for the other.
/// An edge beside one that was drawn already goes to the same pixel.
double QtSurface::SnappedEdge(Edges& edges, double twips) const {
    const int whole = static_cast<int>(std::lround(twips));
    const auto near = edges.lower_bound(whole - 1);
    if (near != edges.end() && near->first <= whole + 1) return near->second;
    return edges.emplace(whole, Snapped(twips)).first->second;
}

QPointF QtSurface::SnappedCorner(double x, double y) {
    return {SnappedEdge(columns_, x), SnappedEdge(rows_, y)};
}

QPen QtSurface::Pen(Colour colour) const {
    return {QBrush(ToQColor(colour)), PenPixels() / pixelsPerTwip_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

void QtSurface::Clear(Colour background) {
    columns_.clear();
    rows_.clear();
    if (!Begin()) return;
    Flush();
    const QRectF all(QPointF(0, 0), QSizeF(target_->width(), target_->height()));
    painter_.save();
    painter_.resetTransform();
    painter_.fillRect(all, ToQColor(background));
    painter_.restore();
}

void QtSurface::SetDrawWidth(int pixels) {
    drawWidth_ = std::max(pixels, 1);
}

void QtSurface::Line(double x1, double y1, double x2, double y2, Colour colour) {
    if (!Begin()) return;
    const QLineF line(Snapped(x1), Snapped(y1), Snapped(x2), Snapped(y2));
    if (runs_) return runs_->Line(Pen(colour), line);
    painter_.setPen(Pen(colour));
    painter_.drawLine(line);
}

void QtSurface::Box(double x1, double y1, double x2, double y2, Colour colour) {
    if (!Begin()) return;
    const QRectF box(SnappedCorner(x1, y1), SnappedCorner(x2, y2));
    if (runs_) return runs_->Box(Pen(colour), box);
    // Upright edges on whole pixels need no smoothing, which would only cost time.
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(Pen(colour));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(box);
    painter_.setRenderHint(QPainter::Antialiasing);
}

void QtSurface::FilledBox(double x1, double y1, double x2, double y2, Colour colour) {
    if (!Begin()) return;
    // The size is rounded by itself: boxes of one size stay so wherever they lie.
    const auto whole = [this](double twips) { return std::round(twips * pixelsPerTwip_) / pixelsPerTwip_; };
    const QRectF box(whole(x1), whole(y1), whole(x2 - x1), whole(y2 - y1));
    if (runs_) return runs_->FilledBox(ToQColor(colour), box);
    painter_.fillRect(box, ToQColor(colour));
}

void QtSurface::Circle(double x, double y, double radius, Colour outline, Colour fill) {
    if (!Begin()) return;
    // An outline of the fill's own colour would only make the circle larger than it is to be.
    const QPen pen = outline == fill ? QPen(Qt::NoPen) : Pen(outline);
    if (runs_) return runs_->Circle(pen, ToQColor(fill), QPointF(x, y), radius);
    painter_.setPen(pen);
    painter_.setBrush(ToQColor(fill));
    painter_.drawEllipse(QPointF(x, y), radius, radius);
}

/// Whole pixels, and one of them at least between the strokes.
double QtSurface::StrokeDistance(double gap) const {
    if (pixelsPerTwip_ <= 0) return gap;
    return std::max(std::round(gap * pixelsPerTwip_), PenPixels() + 1) / pixelsPerTwip_;
}

void QtSurface::SetFontSize(double points) {
    font_.setPixelSize(std::max(1, qRound(points * kTwipsPerPoint)));
}

Surface::Extent QtSurface::TextExtent(const std::string& text) {
    const QFontMetricsF metrics(font_);
    return {metrics.horizontalAdvance(QString::fromStdString(text)), metrics.height()};
}

void QtSurface::Print(double x, double y, const std::string& text, Colour colour) {
    if (!Begin()) return;
    const QPointF place(x, y + QFontMetricsF(font_).ascent());
    if (runs_) return runs_->Text(font_, ToQColor(colour), place, QString::fromStdString(text));
    painter_.setFont(font_);
    painter_.setPen(ToQColor(colour));
    painter_.drawText(place, QString::fromStdString(text));
}

}  // namespace tidewalk
