// SPDX-License-Identifier: MIT
#include "ui/picture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>
#include <cmath>

#include "drawing/render_puzzle.h"
#include "game/messages.h"
#include "ui/qt_surface.h"
#include "ui/save_file.h"

namespace tidewalk {

namespace {

constexpr double kPixelsPerInch = 96;
constexpr int kLargestSide = 32767;  ///< in pixels, as much as a painter can reach
constexpr double kInchesPerMetre = 39.37;
constexpr int kPdfPixelsPerInch = 1200;

/// One page, as large as the picture.
void WritePdf(QIODevice& file, const PuzzlePicture& picture) {
    QtSurface surface(kPdfPixelsPerInch, kTwipsPerPen);
    const Surface::Area drawn = picture.draw(surface);
    const double left = drawn.left - kPictureMargin;
    const double top = drawn.top - kPictureMargin;
    const QSizeF size(drawn.right + kPictureMargin - left, drawn.bottom + kPictureMargin - top);
    QPdfWriter writer(&file);
    writer.setResolution(kPdfPixelsPerInch);
    writer.setTitle(QString::fromStdString(picture.title));
    writer.setCreator(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    writer.setPageSize(QPageSize(size / kTwipsPerPoint, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    surface.SetOrigin(left, top);
    surface.SetTarget(&writer);
    picture.draw(surface);
    surface.SetTarget(nullptr);
}

/// The picture as a file whose name ends like this; nothing where it is too large.
QByteArray ContentOf(const PuzzlePicture& picture, const QString& ending, double scale) {
    if (ending == "svg") return QByteArray::fromStdString(picture.svg);
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (ending == "pdf") {
        WritePdf(content, picture);
    } else if (const QImage image = MakePicture(picture.draw, scale); !image.save(&content, "PNG")) {
        return {};
    }
    return content.data();
}

}  // namespace

QImage MakePicture(const DrawFunction& draw, double scale) {
    QtSurface surface(kPixelsPerInch, kTwipsPerPen);
    // Drawing to nowhere tells how large it becomes.
    const Surface::Area drawn = draw(surface);
    const auto pixels = [scale](double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel * scale)); };
    const QRect cut(QPoint(pixels(drawn.left - kPictureMargin), pixels(drawn.top - kPictureMargin)),
                    QPoint(pixels(drawn.right + kPictureMargin), pixels(drawn.bottom + kPictureMargin)));
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

QString WritePicture(const QString& path, const PuzzlePicture& picture, double scale) {
    const QByteArray content = ContentOf(picture, QFileInfo(path).suffix().toLower(), scale);
    return content.isEmpty() ? QString("The picture is too large") : WriteFile(path, content);
}

}  // namespace tidewalk
