// SPDX-License-Identifier: MIT
// The window that asks which puzzles of a file to print.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include "ui/handlers.h"

namespace tidewalk {

/// "Print Puzzles From File". It shows the fields and keeps them up to date; what they mean is decided elsewhere.
class Form5 final : public QDialog {
    Q_OBJECT

 public:
    Form5(Handlers& handlers, Form5Fields& fields, QWidget* parent);

 private:
    void AddControls();
    void Show();
    void Take();
    void Pick();
    void Accept();

    Handlers& handlers_;
    Form5Fields& fields_;
    QLineEdit* fileNow_;
    QLineEdit* text1_;
    QLineEdit* text2_;
    QLabel* count_;
    QComboBox* combo1_;
};

/// Shows the window over the main window.
class QtForm5 final : public Form5Window {
 public:
    explicit QtForm5(Handlers& handlers) : handlers_(handlers) {}

    void SetMainWindow(QWidget* window) { mainWindow_ = window; }
    void ShowModal(Form5Fields& fields) override { Form5(handlers_, fields, mainWindow_.data()).exec(); }

 private:
    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
};

}  // namespace tidewalk
