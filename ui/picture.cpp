// SPDX-License-Identifier: MIT
#include "ui/picture.h"

#include <QFileInfo>
#include <QPdfWriter>
#include <QSaveFile>
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

bool WriteContent(QSaveFile& file, const PuzzlePicture& picture, double scale) {
    const QString ending = QFileInfo(file.fileName()).suffix().toLower();
    if (ending == "svg") return file.write(QByteArray::fromStdString(picture.svg)) >= 0;
    if (ending == "pdf") {
        WritePdf(file, picture);
        return file.error() == QFileDevice::NoError;
    }
    const QImage image = MakePicture(picture.draw, scale);
    return !image.isNull() && image.save(&file, "PNG");
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
    if (QString reason = WhyNotReplaceable(path); !reason.isEmpty()) return reason;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && WriteContent(file, picture, scale) && file.commit()) return "";
    return file.errorString();
}

}  // namespace tidewalk
