// SPDX-License-Identifier: MIT
#include "ui/paper.h"

#include <QFile>
#include <QLocale>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>

#include "drawing/render_puzzle.h"
#include "game/messages.h"
#include "ui/qt_surface.h"
#include "ui/save_file.h"

namespace tidewalk {

namespace {

constexpr double kSmallestMargin = 360;  ///< in twips
constexpr int kPdfPixelsPerInch = 1200;

/// A document that is written beside its file and takes its place at the end.
class PdfDocument final : public PrintDocument {
 public:
    explicit PdfDocument(const QString& path) : file_(path), surface_(kPdfPixelsPerInch, kTwipsPerPen) {}
    ~PdfDocument() override { surface_.SetTarget(nullptr); }

    bool Open(QPageLayout::Orientation orientation) {
        if (!file_.open(QIODevice::WriteOnly)) return false;
        writer_ = std::make_unique<QPdfWriter>(&file_);
        writer_->setResolution(kPdfPixelsPerInch);
        writer_->setCreator(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
        UseWholeSheets(*writer_, UsualPaper(), orientation);
        surface_.SetTarget(writer_.get());
        StartPainting();
        return true;
    }

    Surface& Page() override { return surface_; }
    Surface::Area Printable() const override { return PrintableArea(*writer_); }
    bool NewPage() override { return file_.error() == QFileDevice::NoError && writer_->newPage(); }
    bool End() override {
        surface_.SetTarget(nullptr);
        return file_.commit();
    }
    std::string Error() const override { return (file_.fileName() + "\n" + file_.errorString()).toStdString(); }

 private:
    /// A page that stays empty, the first one too, is a page only if painting has begun.
    void StartPainting() { surface_.FilledBox(0, 0, 0, 0, kWhite); }

    // The surface paints on the writer and the writer writes to the file, so they go in this order.
    QSaveFile file_;
    std::unique_ptr<QPdfWriter> writer_;
    QtSurface surface_;
};

}  // namespace

QPageSize UsualPaper(const QPageSize& wanted) {
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    const bool letter = wanted.isValid() ? wanted.id() == QPageSize::Letter : american;
    return letter ? QPageSize::Letter : QPageSize::A4;
}

void UseWholeSheets(QPagedPaintDevice& device, const QPageSize& paper, QPageLayout::Orientation orientation) {
    QPageLayout layout(paper, orientation, QMarginsF(), QPageLayout::Point, device.pageLayout().minimumMargins());
    layout.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(layout);
}

Surface::Area PrintableArea(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    const QSizeF sheet = layout.fullRect(QPageLayout::Point).size() * kTwipsPerPoint;
    const QMarginsF needed = layout.minimumMargins();  // in points, the unit of the layout
    const auto margin = [](double points) { return std::max(points * kTwipsPerPoint, kSmallestMargin); };
    return {margin(needed.left()), margin(needed.top()), sheet.width() - margin(needed.right()),
            sheet.height() - margin(needed.bottom())};
}

std::unique_ptr<PrintDocument> BeginPdf(const std::string& path, std::string& error,
                                        QPageLayout::Orientation orientation) {
    const QString name = QFile::decodeName(path.c_str());
    if (const QString reason = WhyNotReplaceable(name); !reason.isEmpty()) {
        error = (name + "\n" + reason).toStdString();
        return nullptr;
    }
    auto document = std::make_unique<PdfDocument>(name);
    if (document->Open(orientation)) return document;
    error = document->Error();
    return nullptr;
}

}  // namespace tidewalk
