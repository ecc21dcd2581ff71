// SPDX-License-Identifier: MIT
// What is painted over the board: the rubber band, the marker and the keyboard's focus.
#pragma once

#include <QWidget>

#include "ui/handlers.h"

namespace tidewalk {

class BoardView;

/// Lies over the board and its container, so that nothing is cut off at the board's edge, and lets the mouse through.
/// It paints from the game's state.
class BoardOverlay final : public QWidget {
    Q_OBJECT

 public:
    BoardOverlay(Handlers& handlers, const BoardView& board, QWidget* parent);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void PaintFocus(QPainter& painter, const Game& game) const;
    void PaintLine1(QPainter& painter, const Game& game) const;
    void PaintGuide(QPainter& painter, const Game& game) const;
    void PaintSolved(QPainter& painter, const Game& game) const;
    void PaintPointed(QPainter& painter, const Game& game) const;
    void PaintEdgeMarks(QPainter& painter, const Game& game) const;
    void PaintShape1(QPainter& painter, const Board& board) const;

    Handlers& handlers_;
    const BoardView& board_;
};

}  // namespace tidewalk
