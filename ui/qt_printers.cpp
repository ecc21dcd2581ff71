// SPDX-License-Identifier: MIT
#include "ui/qt_printers.h"

#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>

#include "board/copy_and_print.h"
#include "drawing/render_puzzle.h"
#include "ui/paper.h"
#include "ui/picture.h"
#include "ui/print_preview.h"
#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

/// A document on a printer of the system.
class PrinterDocument final : public PrintDocument {
 public:
    PrinterDocument(std::string name, std::unique_ptr<QPrinter> device)
        : name_(std::move(name)), device_(std::move(device)), surface_(device_->resolution(), kTwipsPerPen) {
        surface_.SetTarget(device_.get());
        // A page that stays empty, the first one too, is a page only if painting has begun.
        surface_.FilledBox(0, 0, 0, 0, kWhite);
    }
    ~PrinterDocument() override {
        if (!ended_ && Works()) device_->abort();
        surface_.SetTarget(nullptr);
    }

    bool Works() const { return device_->printerState() == QPrinter::Active; }

    Surface& Page() override { return surface_; }
    Sheet PageSheet() const override { return tidewalk::SheetOf(*device_); }
    bool NewPage() override {
        surface_.Flush();
        return Works() && device_->newPage();
    }
    bool End() override {
        if (!Works()) return false;
        ended_ = true;
        surface_.SetTarget(nullptr);
        return device_->printerState() != QPrinter::Error;
    }
    std::string Error() const override {
        return "The printer \"" + name_ +
               "\" does not take the document.\nSee whether it is switched on and connected.";
    }

 private:
    std::string name_;
    std::unique_ptr<QPrinter> device_;
    QtSurface surface_;
    bool ended_ = false;
};

}  // namespace

std::vector<std::string> QtPrinters::Names() {
    std::vector<std::string> names;
    const QString first = QPrinterInfo::defaultPrinterName();
    if (!first.isEmpty()) names.push_back(first.toStdString());
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        if (name != first) names.push_back(name.toStdString());
    }
    names.emplace_back(kPdfPrinter);
    return names;
}

Paper QtPrinters::UsualPaper() {
    const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
    return tidewalk::UsualPaper(usual.isNull() ? QPageSize() : usual.defaultPageSize());
}

Sheet QtPrinters::SheetOf(const std::string& printer, const SheetFormat& format) {
    DocumentSetup setup;
    setup.printer = printer;
    setup.format = format;
    QPrinter device(QPrinter::HighResolution);
    SetUp(device, setup);
    return tidewalk::SheetOf(device);
}

/// Prepares the device for the document. Without a format it is laid out for the paper that the printer uses.
void QtPrinters::SetUp(QPrinter& device, const DocumentSetup& setup) const {
    if (setup.printer == kPdfPrinter) {
        device.setOutputFormat(QPrinter::PdfFormat);
    } else {
        device.setPrinterName(QString::fromStdString(setup.printer));
    }
    device.setCreator(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    device.setDocName(setup.title.empty() ? device.creator() : QString::fromStdString(setup.title));
    const Paper usual = tidewalk::UsualPaper(device.pageLayout().pageSize());
    UseWholeSheets(device, setup.format.value_or(SheetFormat{usual, landscape_}));
}

std::unique_ptr<PrintDocument> QtPrinters::Begin(const DocumentSetup& setup, std::string& error) {
    if (setup.printer == kPdfPrinter) {
        DocumentSetup whole = setup;
        if (!whole.format) whole.format = SheetFormat{tidewalk::UsualPaper(), landscape_};
        return BeginPdf(whole, error);
    }
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    SetUp(*device, setup);
    auto document = std::make_unique<PrinterDocument>(setup.printer, std::move(device));
    if (document->Works()) return document;
    error = document->Error();
    return nullptr;
}

void QtPrinters::Preview(const std::string& printer, const PageFunction& draw) {
    QPrinter device(QPrinter::HighResolution);
    DocumentSetup setup;
    setup.printer = printer;
    SetUp(device, setup);
    PrintPreview dialog(device, mainWindow_.data());
    QObject::connect(&dialog, &PrintPreview::PaintRequested, &dialog, [&draw](QPrinter* target) {
        QtSurface surface(target->resolution(), kTwipsPerPen);
        surface.SetTarget(target);
        draw(surface, tidewalk::SheetOf(*target).printable);
        surface.SetTarget(nullptr);
    });
    QObject::connect(&handlers_, &Handlers::Ending, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted) return;
    landscape_ = dialog.Orientation() == QPageLayout::Landscape;
    handlers_.Run(mnuprintcurrent_Click);
    landscape_ = false;
}

std::string QtPrinters::SavePicture(const std::string& file, const PuzzlePicture& picture) {
    const double scale = mainWindow_ != nullptr ? mainWindow_->devicePixelRatioF() : 1;
    return WritePicture(QFile::decodeName(file.c_str()), picture, scale).toStdString();
}

}  // namespace tidewalk
