// SPDX-License-Identifier: MIT
#include "ui/paper.h"

#include <QFile>
#include <QLocale>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryFile>
#include <algorithm>
#include <utility>

#include "drawing/render_puzzle.h"
#include "game/messages.h"
#include "ui/finish_pdf.h"
#include "ui/qt_surface.h"
#include "ui/save_file.h"

namespace tidewalk {

namespace {

constexpr double kSmallestMargin = 360;  ///< in twips
constexpr int kPdfPixelsPerInch = 1200;

PdfProperties PropertiesOf(const DocumentSetup& setup) {
    return {QString::fromStdString(setup.title), QString::fromStdString(setup.author),
            QString::fromStdString(setup.subject), QString::fromStdString(setup.keywords),
            QString::fromUtf8(AppTitle.data(), AppTitle.size())};
}

/// A document that Qt writes to a file without a name, and that takes its place at the end in its finished form.
class PdfDocument final : public PrintDocument {
 public:
    PdfDocument(const QString& path, DocumentSetup setup)
        : setup_(std::move(setup)), file_(path), surface_(kPdfPixelsPerInch, kTwipsPerPen) {}
    ~PdfDocument() override { surface_.SetTarget(nullptr); }

    bool Open() {
        if (!file_.open(QIODevice::WriteOnly)) return Fail(file_.errorString());
        if (!raw_.open()) return Fail(raw_.errorString());
        writer_ = std::make_unique<QPdfWriter>(&raw_);
        writer_->setResolution(kPdfPixelsPerInch);
        UseWholeSheets(*writer_, setup_.format.value_or(SheetFormat{UsualPaper(), false}));
        surface_.SetTarget(writer_.get());
        StartPainting();
        return true;
    }

    Surface& Page() override { return surface_; }
    Sheet PageSheet() const override { return SheetOf(*writer_); }
    bool NewPage() override {
        surface_.Flush();
        if (raw_.error() == QFileDevice::NoError && writer_->newPage()) return true;
        return Fail(FlushFile(raw_));
    }
    bool End() override {
        surface_.SetTarget(nullptr);
        if (const QString why = FlushFile(raw_); !why.isEmpty()) return Fail(why);
        const uchar* const written = raw_.map(0, raw_.size());
        if (written == nullptr) return Fail(raw_.errorString());
        QString reason = FinishPdf(QByteArrayView(written, raw_.size()), PropertiesOf(setup_), file_);
        if (reason.isEmpty()) reason = CommitFile(file_);
        return reason.isEmpty() || Fail(reason);
    }
    std::string Error() const override { return (file_.fileName() + "\n" + reason_).toStdString(); }

 private:
    bool Fail(const QString& reason) {
        reason_ = reason;
        return false;
    }

    /// A page that stays empty, the first one too, is a page only if painting has begun.
    void StartPainting() { surface_.FilledBox(0, 0, 0, 0, kWhite); }

    DocumentSetup setup_;
    QSaveFile file_;
    QString reason_;  ///< why the last call failed
    // The surface paints on the writer and the writer writes to the raw file, so they go in this order.
    QTemporaryFile raw_;
    std::unique_ptr<QPdfWriter> writer_;
    QtSurface surface_;
};

QPageSize PageSizeOf(Paper paper) {
    switch (paper) {
        case Paper::A4:
            return QPageSize::A4;
        case Paper::A5:
            return QPageSize::A5;
        case Paper::Letter:
            break;
    }
    return QPageSize::Letter;
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
