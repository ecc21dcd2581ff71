// SPDX-License-Identifier: MIT
// The window in which a puzzle of the collection is chosen.
#pragma once

#include <QDialog>

#include "game/game.h"
#include "ui/puzzle_list_model.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace tidewalk {

/// Shows the puzzles as small pictures, all of them or those that a filter takes. It is accepted when one is to be
/// opened.
class Chooser final : public QDialog {
    Q_OBJECT

 public:
    /// The puzzle on the board is selected at first, as soon as its line was found.
    Chooser(const Game& game, PlayStates states, QWidget* parent);

    /// The number of the puzzle to open; 0 for none.
    int Chosen() const;

 protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QComboBox* AddFilter(const char* name, const QString& caption, QLayout& row);
    void AddFilters(QVBoxLayout& column);
    void AddTable(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    void Filter();
    PuzzleFilter Wanted() const;
    void TakeColumns();
    void Select(int number);
    void GoToTyped();
    void Refresh();

    PuzzleBook book_;
    PuzzleListModel model_;
    PuzzleSearch search_;
    QTableView* table_;
    QComboBox* size_ = nullptr;
    QComboBox* grade_ = nullptr;
    QComboBox* state_ = nullptr;
    QLineEdit* number_;
    QLabel* count_;
    QPushButton* open_;
    int looked_ = 0;          ///< by the search
    bool searching_ = false;  ///< it has not come to its end
    int wanted_;              ///< the puzzle that is to be selected when it is shown; 0 for none
};

}  // namespace tidewalk
