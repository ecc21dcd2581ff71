// SPDX-License-Identifier: MIT
// The window that shows the solution of a puzzle, or two of several.
#pragma once

#include <QDialog>

#include "game/questions.h"
#include "options/options.h"

class QHBoxLayout;
class QListWidget;
class QVBoxLayout;

namespace tidewalk {

class SolutionView;

/// What there is to be said of the solutions, their pictures side by side, and a list of where two differ. The place
/// that is chosen in the list stands out in both pictures.
class SolutionsWindow final : public QDialog {
    Q_OBJECT

 public:
    SolutionsWindow(const FoundSolutions& found, const Options& options, QWidget* parent);

 private:
    void AddPictures(QVBoxLayout& column, const FoundSolutions& found, const Options& options);
    void AddList(QVBoxLayout& column, const FoundSolutions& found);
    void AddClose(QVBoxLayout& column);

    std::vector<SolutionView*> views_;
};

}  // namespace tidewalk
