// SPDX-License-Identifier: MIT
// The window that asks which puzzles of a file to print.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "ui/handlers.h"

namespace tidewalk {

/// "Print Puzzles From File". It shows the request and keeps it up to date; what it means is decided elsewhere.
class Form5 final : public QDialog {
    Q_OBJECT

 public:
    Form5(Handlers& handlers, PrintRequest& request, QWidget* parent);

 private:
    void AddControls();
    void Show();
    void Take();
    void Pick();
    void Accept();

    Handlers& handlers_;
    PrintRequest& request_;
    QLineEdit* fileNow_;
    QLineEdit* text1_;
    QLineEdit* text2_;
    QLabel* count_;
    QComboBox* combo1_;
};

}  // namespace tidewalk
