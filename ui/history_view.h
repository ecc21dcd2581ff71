// SPDX-License-Identifier: MIT
// The list of moves `UndoList` beside the board.
#pragma once

#include <QListView>
#include <optional>

#include "ui/handlers.h"

namespace tidewalk {

/// Shows the game's moves, those that were taken back in grey. The islands of the move under the pointer, or of the
/// current one while the list has the focus, are marked on the board; a double click or Enter goes to the moment after
/// that move.
class HistoryView final : public QListView {
    Q_OBJECT

 public:
    explicit HistoryView(Handlers& handlers, QWidget* parent = nullptr);

    /// Takes the moves over anew if they have changed.
    void Refresh();

    QSize sizeHint() const override;

 protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
    class Model;

    void Point();
    void GoTo(const QModelIndex& index);

    Handlers& handlers_;
    Model* model_;
    std::optional<QPoint> pointer_;  ///< where the mouse is over the list
    std::optional<std::uint64_t> shown_;
};

}  // namespace tidewalk
