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

void SetUp(QPrinter& device, const std::string& name, QPageLayout::Orientation orientation) {
    if (name == kPdfPrinter) {
        device.setOutputFormat(QPrinter::PdfFormat);
    } else {
        device.setPrinterName(QString::fromStdString(name));
    }
    device.setCreator(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    device.setDocName(device.creator());
    UseWholeSheets(device, UsualPaper(device.pageLayout().pageSize()), orientation);
}

/// A document on a printer of the system.
class PrinterDocument final : public PrintDocument {
 public:
    PrinterDocument(const std::string& name, QPageLayout::Orientation orientation)
        : name_(name), device_(QPrinter::HighResolution) {
        SetUp(device_, name, orientation);
        surface_ = std::make_unique<QtSurface>(device_.resolution(), kTwipsPerPen);
        surface_->SetTarget(&device_);
        // A page that stays empty, the first one too, is a page only if painting has begun.
        surface_->FilledBox(0, 0, 0, 0, kWhite);
    }
    ~PrinterDocument() override {
        if (!ended_ && Works()) device_.abort();
        surface_->SetTarget(nullptr);
    }

    bool Works() const { return device_.printerState() == QPrinter::Active; }

    Surface& Page() override { return *surface_; }
    Surface::Area Printable() const override { return PrintableArea(device_); }
    bool NewPage() override { return Works() && device_.newPage(); }
    bool End() override {
        if (!Works()) return false;
        ended_ = true;
        surface_->SetTarget(nullptr);
        return device_.printerState() != QPrinter::Error;
    }
    std::string Error() const override {
        return "The printer \"" + name_ +
               "\" does not take the document.\nSee whether it is switched on and connected.";
    }

 private:
    std::string name_;
    QPrinter device_;
    std::unique_ptr<QtSurface> surface_;
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

std::unique_ptr<PrintDocument> QtPrinters::Begin(const std::string& printer, const std::string& file,
                                                 std::string& error) {
    if (printer == kPdfPrinter) return BeginPdf(file, error, orientation_);
    auto document = std::make_unique<PrinterDocument>(printer, orientation_);
    if (document->Works()) return document;
    error = document->Error();
    return nullptr;
}

void QtPrinters::Preview(const std::string& printer, const PageFunction& draw) {
    QPrinter device(QPrinter::HighResolution);
    SetUp(device, printer, orientation_);
    PrintPreview dialog(device, mainWindow_.data());
    QObject::connect(&dialog, &PrintPreview::PaintRequested, &dialog, [&draw](QPrinter* target) {
        QtSurface surface(target->resolution(), kTwipsPerPen);
        surface.SetTarget(target);
        draw(surface, PrintableArea(*target));
        surface.SetTarget(nullptr);
    });
    QObject::connect(&handlers_, &Handlers::Ending, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted) return;
    orientation_ = dialog.Orientation();
    handlers_.Run(mnuprintcurrent_Click);
    orientation_ = QPageLayout::Portrait;
}

std::string QtPrinters::SavePicture(const std::string& file, const PuzzlePicture& picture) {
    const double scale = mainWindow_ != nullptr ? mainWindow_->devicePixelRatioF() : 1;
    return WritePicture(QFile::decodeName(file.c_str()), picture, scale).toStdString();
}

}  // namespace tidewalk
