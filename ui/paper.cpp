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
    PdfDocument(const QString& path, const DocumentSetup& setup)
        : setup_(setup), file_(path), surface_(kPdfPixelsPerInch, kTwipsPerPen) {}
    ~PdfDocument() override { surface_.SetTarget(nullptr); }

    bool Open() {
        if (!file_.open(QIODevice::WriteOnly)) return false;
        writer_ = std::make_unique<QPdfWriter>(&file_);
        writer_->setResolution(kPdfPixelsPerInch);
        writer_->setCreator(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
        writer_->setTitle(QString::fromStdString(setup_.title));
        UseWholeSheets(*writer_, setup_.format.value_or(SheetFormat{UsualPaper(), false}));
        surface_.SetTarget(writer_.get());
        StartPainting();
        return true;
    }

    Surface& Page() override { return surface_; }
    Sheet PageSheet() const override { return SheetOf(*writer_); }
    bool NewPage() override { return file_.error() == QFileDevice::NoError && writer_->newPage(); }
    bool End() override {
        surface_.SetTarget(nullptr);
        return file_.commit();
    }
    std::string Error() const override { return (file_.fileName() + "\n" + file_.errorString()).toStdString(); }

 private:
    /// A page that stays empty, the first one too, is a page only if painting has begun.
    void StartPainting() { surface_.FilledBox(0, 0, 0, 0, kWhite); }

    DocumentSetup setup_;
    // The surface paints on the writer and the writer writes to the file, so they go in this order.
    QSaveFile file_;
    std::unique_ptr<QPdfWriter> writer_;
    QtSurface surface_;
};

QPageSize PageSizeOf(Paper paper) {
    switch (paper) {
        case Paper::A4:
            return QPageSize(QPageSize::A4);
        case Paper::A5:
            return QPageSize(QPageSize::A5);
        case Paper::Letter:
            break;
    }
    return QPageSize(QPageSize::Letter);
}

}  // namespace

Paper UsualPaper(const QPageSize& wanted) {
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    const bool letter = wanted.isValid() ? wanted.id() == QPageSize::Letter : american;
    return letter ? Paper::Letter : Paper::A4;
}

void UseWholeSheets(QPagedPaintDevice& device, const SheetFormat& format) {
    const auto orientation = format.landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    QPageLayout layout(PageSizeOf(format.paper), orientation, QMarginsF(), QPageLayout::Point,
                       device.pageLayout().minimumMargins());
    layout.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(layout);
}

Sheet SheetOf(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    const QSizeF sheet = layout.fullRect(QPageLayout::Point).size() * kTwipsPerPoint;
    const QMarginsF needed = layout.minimumMargins();  // in points, the unit of the layout
    const auto margin = [](double points) { return std::max(points * kTwipsPerPoint, kSmallestMargin); };
    return {{sheet.width(), sheet.height()},
            {margin(needed.left()), margin(needed.top()), sheet.width() - margin(needed.right()),
             sheet.height() - margin(needed.bottom())}};
}

std::unique_ptr<PrintDocument> BeginPdf(const DocumentSetup& setup, std::string& error) {
    const QString name = QFile::decodeName(setup.file.c_str());
    if (const QString reason = WhyNotReplaceable(name); !reason.isEmpty()) {
        error = (name + "\n" + reason).toStdString();
        return nullptr;
    }
    auto document = std::make_unique<PdfDocument>(name, setup);
    if (document->Open()) return document;
    error = document->Error();
    return nullptr;
}

}  // namespace tidewalk
