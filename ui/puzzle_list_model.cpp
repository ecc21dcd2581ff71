// SPDX-License-Identifier: MIT
#include "ui/puzzle_list_model.h"

#include <algorithm>
#include <utility>

#include "board/keep_play.h"
#include "techniques/assess_board.h"

namespace tidewalk {

QString CardText(int number, const PuzzleCard* card, const Assessment* assessment) {
    QString text = QObject::tr("Puzzle %1").arg(number);
    if (card == nullptr) return text;
    if (!card->isPuzzle) return text + QObject::tr(", not a puzzle");
    text += ", " + (assessment == nullptr ? QString("%1x%2").arg(card->size.rows).arg(card->size.cols)
                                          : QString::fromStdString(AssessmentText(card->size, *assessment)));
    if (card->played.state == PlayState::Begun) text += QObject::tr(", begun");
    if (card->played.state == PlayState::Solved) text += QObject::tr(", solved");
    if (card->played.seconds > 0) text += ", " + QString::fromStdString(TimeText(card->played.seconds));
    return text;
}

PuzzleListModel::PuzzleListModel(PuzzleBook& book) : book_(book) {
    connect(&book_, &PuzzleBook::Grown, this, [this] {
        if (!found_) GrowTo(book_.Lines());
    });
    connect(&book_, &PuzzleBook::Changed, this, [this](int number) {
        const QModelIndex at = IndexOf(number);
        if (at.isValid()) emit dataChanged(at, at);
    });
}

void PuzzleListModel::SetColumns(int columns) {
    if (columns == columns_) return;
    beginResetModel();
    columns_ = columns;
    endResetModel();
}

void PuzzleListModel::ShowAll() {
    Reset(std::nullopt);
    GrowTo(book_.Lines());
}

void PuzzleListModel::ShowFound() {
    Reset(QList<int>());
}

void PuzzleListModel::Reset(const std::optional<QList<int>>& found) {
    beginResetModel();
    found_ = found;
    shown_ = 0;
    endResetModel();
}

void PuzzleListModel::Add(const QList<int>& numbers) {
    if (!found_) return;
    *found_ += numbers;
    GrowTo(static_cast<int>(found_->size()));
}

/// The last row may get further puzzles, too.
void PuzzleListModel::GrowTo(int count) {
    if (count <= shown_) return;
    const int rows = rowCount();
    const int then = (count + columns_ - 1) / columns_;
    if (then > rows) beginInsertRows({}, rows, then - 1);
    shown_ = count;
    if (then > rows) endInsertRows();
    if (rows > 0) emit dataChanged(index(rows - 1, 0), index(rows - 1, columns_ - 1));
}

int PuzzleListModel::Count() const {
    return shown_;
}

int PuzzleListModel::NumberAt(const QModelIndex& index) const {
    if (!index.isValid()) return 0;
    const int place = index.row() * columns_ + index.column();
    if (place >= shown_) return 0;
    return found_ ? found_->at(place) : place + 1;
}

QModelIndex PuzzleListModel::IndexOf(int number) const {
    int place = number - 1;
    if (found_) {
        const auto at = std::lower_bound(found_->begin(), found_->end(), number);
        place = at != found_->end() && *at == number ? static_cast<int>(at - found_->begin()) : -1;
    }
    if (place < 0 || place >= shown_) return {};
    return index(place / columns_, place % columns_);
}

QModelIndex PuzzleListModel::Last() const {
    return shown_ == 0 ? QModelIndex() : index((shown_ - 1) / columns_, (shown_ - 1) % columns_);
}

int PuzzleListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : (shown_ + columns_ - 1) / columns_;
}

int PuzzleListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant PuzzleListModel::data(const QModelIndex& index, int role) const {
    const int number = NumberAt(index);
    if (number == 0 || (role != Qt::AccessibleTextRole && role != Qt::ToolTipRole)) return {};
    return CardText(number, book_.Card(number), book_.AssessmentOf(number));
}

Qt::ItemFlags PuzzleListModel::flags(const QModelIndex& index) const {
    return NumberAt(index) == 0 ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace tidewalk
