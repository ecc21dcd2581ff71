// SPDX-License-Identifier: MIT
// What the program's routines write to the main window and read from it.
#pragma once

#include <QApplication>
#include <QPalette>

#include "ui/form1.h"

namespace tidewalk {

class QtMainWindow final : public MainWindow {
 public:
    QtMainWindow(Form1& form, Handlers& handlers) : form_(form), handlers_(handlers) {}

    std::string Text(WindowText which) const override { return form_.TextOf(which).toStdString(); }
    void SetText(WindowText which, const std::string& text) override {
        form_.SetTextOf(which, QString::fromStdString(text));
    }
    void SetToolTip(WindowText which, const std::string& text) override {
        form_.SetToolTipOf(which, QString::fromStdString(text));
    }
    void SetPointer(Pointer pointer) override;
    void SetProgress(int done, int total) override { form_.SetProgress(done, total); }
    void ApplyColours() override;
    Colour Desktop(DesktopColour colour) const override;
    void EndProgram() override { handlers_.End(); }

 private:
    Form1& form_;
    Handlers& handlers_;
    QPalette desktop_ = QApplication::palette();  ///< before any scheme
    bool busyPointer_ = false;
};

}  // namespace tidewalk
