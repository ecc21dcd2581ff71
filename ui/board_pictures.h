// SPDX-License-Identifier: MIT
// The board's picture `Picture1`, moved about in its container `Picture5`.
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "board/board_mouse.h"
#include "ui/board_accessible.h"
#include "ui/handlers.h"
#include "ui/qt_surface.h"

namespace tidewalk {

/// The board. What is drawn lies in a backing picture at the screen's pixel ratio; the rubber band, the marker and the
/// keyboard's focus are painted over it from the game's state.
class BoardView final : public QWidget {
    Q_OBJECT

 public:
    BoardView(Handlers& handlers, QWidget* parent);

    Surface& Drawing() { return surface_; }
    Handlers& Source() const { return handlers_; }

    /// Takes its place in the container from the game, with a new backing picture if the size is another one.
    void Place();

    /// While switched off the board takes neither mouse nor keys.
    void SetTakesMouse(bool takes) { takesMouse_ = takes; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    void Announce();
    void FitBacking();
    void PaintFocus(QPainter& painter, const Game& game) const;
    void PaintLine1(QPainter& painter, const Game& game) const;
    void PaintShape1(QPainter& painter, const Board& board) const;
    Point OnBoard(const QPointF& global) const;
    Point InContainer(const QPointF& global) const;

    Handlers& handlers_;
    QPixmap backing_;
    QtSurface surface_;
    IslandAnnouncer announcer_;
    bool takesMouse_ = true;
};

/// The container. It keeps the board in its middle.
class BoardContainer final : public QWidget {
    Q_OBJECT

 public:
    explicit BoardContainer(Handlers& handlers, QWidget* parent = nullptr);

    BoardView& Board() { return *board_; }
    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

 private:
    Handlers& handlers_;
    BoardView* board_;
};

/// The seam to both, and to the timer that takes the marker away.
class QtBoardPictures final : public BoardPictures {
 public:
    QtBoardPictures(BoardContainer& container, Handlers& handlers);

    Surface::Extent ContainerExtent() const override;
    Surface& Picture() override;
    void PlacePicture() override { container_.Board().Place(); }
    void ShowOverlay() override { container_.Board().update(); }
    void SetEnabled(bool enabled) override { container_.Board().SetTakesMouse(enabled); }
    void SetVisible(bool visible) override { container_.Board().setVisible(visible); }
    bool IsVisible() const override { return !container_.Board().isHidden(); }
    void Freeze(bool frozen) override;
    void StartMarkerTime() override;
    void StopMarkerTime() override { timer1_.stop(); }

 private:
    BoardContainer& container_;
    QTimer timer1_;
};

}  // namespace tidewalk
