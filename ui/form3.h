// SPDX-License-Identifier: MIT
// The window `Form3`, which asks for a batch of new puzzles.
#pragma once

#include <QDialog>

#include "ui/handlers.h"

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace tidewalk {

class OneSolutionBox;

/// Number, rows, columns, order and output file of a batch. What was typed stays for the next time. The property "Tag"
/// is "Y" when OK was accepted, "X" otherwise.
class Form3 final : public QDialog {
    Q_OBJECT

 public:
    Form3(Handlers& handlers, QWidget* parent);

    /// Shows the window, with the order of `request` chosen, until the player ends it. True when OK was accepted;
    /// `request` then holds what was typed and chosen.
    bool Ask(BatchRequest& request);

 protected:
    bool event(QEvent* event) override;

 private:
    void AddFields(QFormLayout* form);
    void AddOrder(QFormLayout* form);
    void AddFile(QFormLayout* form);
    void ShowOrder(const OrderChoice& order);
    void AddButtons(QFormLayout* form);
    BatchRequest Typed() const;
    void Show(const BatchRequest& request);
    void Command1();
    void Gf1();

    Handlers& handlers_;
    QLineEdit* text1_;
    QComboBox* combo1_;
    QComboBox* combo2_;
    QComboBox* grade_;
    OneSolutionBox* oneSolution_;
    QComboBox* character_;
    QLineEdit* fileNow_;
};

}  // namespace tidewalk
