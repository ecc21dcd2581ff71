// SPDX-License-Identifier: MIT
// The printers of the system, the PDF file among them.
#pragma once

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
    void Preview(const std::string& printer, const PageFunction& draw) override;

 private:
    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
};

}  // namespace tidewalk
