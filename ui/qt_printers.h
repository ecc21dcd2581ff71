// SPDX-License-Identifier: MIT
// The printers of the system, the PDF file among them.
#pragma once

#include <QPointer>
#include <QWidget>

#include "ui/handlers.h"

class QPrinter;

namespace tidewalk {

class QtPrinters final : public Printers {
 public:
    explicit QtPrinters(Handlers& handlers) : handlers_(handlers) {}

    /// The window over which the preview stands.
    void SetMainWindow(QWidget* window) { mainWindow_ = window; }

    std::vector<std::string> Names() override;
    Paper UsualPaper() override;
    Sheet SheetOf(const std::string& printer, const SheetFormat& format) override;
    std::unique_ptr<PrintDocument> Begin(const DocumentSetup& setup, std::string& error) override;
    /// The preview may be left by printing the current puzzle as it shows there.
    void Preview(const std::string& printer, const PageFunction& draw) override;
    std::string SavePicture(const std::string& file, const PuzzlePicture& picture) override;

 private:
    void SetUp(QPrinter& device, const DocumentSetup& setup) const;

    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
    bool landscape_ = false;  ///< how documents that do not say it come to lie
};

}  // namespace tidewalk
