// SPDX-License-Identifier: MIT
// The file-name picker.
#pragma once

#include <QPointer>
#include <QWidget>

#include "ui/handlers.h"

namespace tidewalk {

/// Asks with a file dialog over the window that is active.
class QtFilePicker final : public FilePicker {
 public:
    explicit QtFilePicker(Handlers& handlers) : handlers_(handlers) {}

    void SetMainWindow(QWidget* window) { mainWindow_ = window; }
    std::string Pick(const FileRequest& request) override;

 private:
    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
};

/// The dialog's filter for "*.tdw;*.txt" under "Tidewalk Files", with all files as the second choice.
QString FileFilter(const std::string& patterns, const std::string& patternName);

}  // namespace tidewalk
