// SPDX-License-Identifier: MIT
// The puzzles to choose from, row by row.
#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <optional>

#include "ui/puzzle_book.h"

namespace tidewalk {

/// "Puzzle 12, 9x9, Hard, one solution, begun, 3:05", or as much of it as is known.
QString CardText(int number, const PuzzleCard* card, const Assessment* assessment);

/// All puzzles of a book, or those that were found, in as many columns as there is room for.
class PuzzleListModel final : public QAbstractTableModel {
    Q_OBJECT

 public:
    explicit PuzzleListModel(PuzzleBook& book);

    void SetColumns(int columns);

    /// Shows all puzzles of the book, as many as are known.
    void ShowAll();
    /// Shows none, until some are found.
    void ShowFound();
    /// Takes further numbers, ascending.
    void Add(const QList<int>& numbers);

    int Count() const;
    /// The puzzle's number; 0 behind the last one.
    int NumberAt(const QModelIndex& index) const;
    /// Its place; an invalid one if it is not shown.
    QModelIndex IndexOf(int number) const;
    /// The place of the last one; an invalid one if there is none.
    QModelIndex Last() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    void GrowTo(int count);
    void Reset(const std::optional<QList<int>>& found);

    PuzzleBook& book_;
    int columns_ = 1;
    int shown_ = 0;                    ///< of all that there are now, as many as the view knows of
    std::optional<QList<int>> found_;  ///< none while all are shown
};

}  // namespace tidewalk
