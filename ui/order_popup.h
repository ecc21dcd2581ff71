// SPDX-License-Identifier: MIT
// The popup at the New Puzzle button, in which the next puzzle is ordered.
#pragma once

#include <QDialog>

#include "ui/handlers.h"

class QButtonGroup;
class QLineEdit;
class QVBoxLayout;

namespace tidewalk {

class OneSolutionBox;

/// Size, grade and "one solution". What is chosen is remembered at once; the size is that of the tool bar's box.
class OrderPopup final : public QDialog {
    Q_OBJECT

 public:
    OrderPopup(Handlers& handlers, QWidget* parent);

    /// Opens below the button, with this size and what was chosen last.
    void OpenAt(const QWidget& button, const QString& size);

 signals:
    void SizeTyped(const QString& size);
    /// Such a puzzle is to be made.
    void Create();

 private:
    void AddSize(QVBoxLayout& column);
    void AddGrades(QVBoxLayout& column);
    void AddButton(QVBoxLayout& column);
    void Keep();

    Handlers& handlers_;
    QLineEdit* size_;
    QButtonGroup* grades_;
    OneSolutionBox* oneSolution_;
};

}  // namespace tidewalk
