// SPDX-License-Identifier: MIT
// The printers of the system, the PDF file among them.
#pragma once

#include <QPageLayout>
#include <QPointer>
#include <QWidget>

#include "ui/handlers.h"

namespace tidewalk {

class QtPrinters final : public Printers {
 public:
    explicit QtPrinters(Handlers& handlers) : handlers_(handlers) {}

    /// The window over which the preview stands.
    void SetMainWindow(QWidget* window) { mainWindow_ = window; }

    std::vector<std::string> Names() override;
    std::unique_ptr<PrintDocument> Begin(const std::string& printer, const std::string& file,
                                         std::string& error) override;
    /// The preview may be left by printing the current puzzle as it shows there.
    void Preview(const std::string& printer, const PageFunction& draw) override;
    std::string SavePicture(const std::string& file, const PuzzlePicture& picture) override;

 private:
    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
    QPageLayout::Orientation orientation_ = QPageLayout::Portrait;  ///< of the documents to come
};

}  // namespace tidewalk
