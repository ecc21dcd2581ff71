// SPDX-License-Identifier: MIT
// The windows that a command waits for.
#pragma once

#include <QApplication>
#include <optional>

#include "ui/booklet_form.h"
#include "ui/chooser.h"
#include "ui/form3.h"
#include "ui/form5.h"
#include "ui/grid_chooser.h"
#include "ui/solutions_window.h"

namespace tidewalk {

/// Asks in `Form3`, which keeps what was typed, and in a new window of the others each time.
class QtQuestions final : public Questions {
 public:
    QtQuestions(Handlers& handlers, QWidget& mainWindow, QtPlayStore& plays)
        : handlers_(handlers), mainWindow_(mainWindow), plays_(plays) {}

    bool AskBatch(BatchRequest& request) override {
        if (!form3_) form3_.emplace(handlers_, &mainWindow_);
        return form3_->Ask(request);
    }
    bool AskPrint(PrintRequest& request) override {
        return Form5(handlers_, request, &mainWindow_).exec() == QDialog::Accepted;
    }
    bool AskBooklet(BookletRequest& request) override {
        return BookletForm(handlers_, request, &mainWindow_).exec() == QDialog::Accepted;
    }
    int ChoosePuzzle() override {
        Chooser chooser(*handlers_.game(), plays_.States(), &mainWindow_);
        return chooser.exec() == QDialog::Accepted ? chooser.Chosen() : 0;
    }
    int ChooseGrid(const GridChoice& choice) override {
        // The number editor asks, too.
        QWidget* const asking = QApplication::activeModalWidget();
        GridChooser chooser(choice, handlers_.game()->options, asking != nullptr ? asking : &mainWindow_);
        return chooser.exec() == QDialog::Accepted ? chooser.Chosen() : 0;
    }
    void ShowSolutions(const FoundSolutions& found) override {
        SolutionsWindow(found, handlers_.game()->options, &mainWindow_).exec();
    }

 private:
    Handlers& handlers_;
    QWidget& mainWindow_;
    QtPlayStore& plays_;
    std::optional<Form3> form3_;  ///< none before the first question
};

}  // namespace tidewalk
