// SPDX-License-Identifier: MIT
#include "ui/history_view.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "board/board_commands.h"
#include "board/history_lines.h"

namespace tidewalk {

class HistoryView::Model final : public QAbstractListModel {
 public:
    explicit Model(HistoryView* view) : QAbstractListModel(view), view_(*view) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const Game* const game = view_.handlers_.game();
        const HistoryLine* const line = LineAt(index);
        if (game == nullptr || line == nullptr) return {};
        if (role == Qt::ForegroundRole && line->isAhead)
            return view_.palette().brush(QPalette::Disabled, QPalette::Text);
        const Puzzle& puzzle = game->board.puzzle;
        if (role == Qt::AccessibleTextRole) return QString::fromStdString(SpokenText(*line, puzzle));
        return role == Qt::DisplayRole ? QString::fromStdString(Text(*line, puzzle)) : QVariant();
    }

    const HistoryLine* LineAt(const QModelIndex& index) const {
        return index.isValid() ? &lines_[static_cast<std::size_t>(index.row())] : nullptr;
    }

    /// Takes other lines. Where only some of them have become grey, or black again, the current one stays.
    void Take(std::vector<HistoryLine> lines) {
        const auto same = [](const HistoryLine& a, HistoryLine b) {
            b.isAhead = a.isAhead;
            return a == b;
        };
        if (std::equal(lines_.begin(), lines_.end(), lines.begin(), lines.end(), same)) {
            lines_ = std::move(lines);
            if (!lines_.empty()) emit dataChanged(index(0), index(rowCount({}) - 1));
            return;
        }
        beginResetModel();
        lines_ = std::move(lines);
        endResetModel();
    }

    /// The newest of the moves that are made.
    QModelIndex Now() const {
        const auto made = [](const HistoryLine& line) { return !line.isAhead; };
        const auto found = std::find_if(lines_.begin(), lines_.end(), made);
        return found == lines_.end() ? QModelIndex() : index(static_cast<int>(found - lines_.begin()));
    }

 private:
    HistoryView& view_;
    std::vector<HistoryLine> lines_;
};

HistoryView::HistoryView(Handlers& handlers, QWidget* parent)
    : QListView(parent), handlers_(handlers), model_(new Model(this)) {
    setObjectName("UndoList");
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    viewport()->setMouseTracking(true);
    connect(this, &QListView::doubleClicked, this, &HistoryView::GoTo);
}

QSize HistoryView::sizeHint() const {
    constexpr int kFrame = 24;  // with the scroll bar, in pixels
    return {fontMetrics().horizontalAdvance("R25C25 - R25C25: no bridge") + kFrame, QListView::sizeHint().height()};
}

void HistoryView::Refresh() {
    const Game* const game = handlers_.game();
    if (game == nullptr || shown_ == game->board.history.Revision()) return;
    shown_ = game->board.history.Revision();
    model_->Take(HistoryLines(game->board.history));
    // Whoever reads here stays where he is.
    if (!pointer_ && !hasFocus()) scrollTo(model_->Now());
    Point();
}

/// Tells the board which islands to mark.
void HistoryView::Point() {
    const Game* const game = handlers_.game();
    if (game == nullptr) return;
    const HistoryLine* line = hasFocus() ? model_->LineAt(currentIndex()) : nullptr;
    if (pointer_) line = model_->LineAt(indexAt(*pointer_));
    Board::PointedPair pair;
    if (line != nullptr && line->kind == HistoryLine::Kind::Move) pair = {line->move.record.a, line->move.record.b};
    if (pair != game->board.pointed) handlers_.Run([&](Game& g) { PointAtPair(g, pair.a, pair.b); });
}

void HistoryView::GoTo(const QModelIndex& index) {
    if (const HistoryLine* const line = model_->LineAt(index))
        handlers_.Run([moment = line->moment](Game& game) { GoToMoment(game, moment); });
}

void HistoryView::mouseMoveEvent(QMouseEvent* event) {
    QListView::mouseMoveEvent(event);
    pointer_ = event->pos();
    Point();
}

bool HistoryView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        pointer_.reset();
        Point();
    }
    return QListView::viewportEvent(event);
}

void HistoryView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (!event->isAutoRepeat()) GoTo(currentIndex());
        return;
    }
    QListView::keyPressEvent(event);
    pointer_.reset();
    Point();
}

void HistoryView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    Point();
}

void HistoryView::focusOutEvent(QFocusEvent* event) {
    QListView::focusOutEvent(event);
    Point();
}

void HistoryView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    Point();
}

}  // namespace tidewalk
