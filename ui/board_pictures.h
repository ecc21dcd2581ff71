// SPDX-License-Identifier: MIT
// The board's picture `Picture1`, moved about in its container `Picture5`.
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "board/board_mouse.h"
#include "ui/board_accessible.h"
#include "ui/board_overlay.h"
#include "ui/board_touch.h"
#include "ui/handlers.h"
#include "ui/qt_surface.h"

namespace tidewalk {

/// The board. What is drawn lies in a backing picture at the screen's pixel ratio.
class BoardView final : public QWidget {
    Q_OBJECT

 public:
    BoardView(Handlers& handlers, QWidget* parent);

    /// What the board is drawn on: all of it, for a picture in part drawn anew is none.
    Surface& Drawing() {
        stretched_ = false;
        return surface_;
    }
    Handlers& Source() const { return handlers_; }

    /// Takes its place in the container from the game, with a new backing picture if the size is another one.
    void Place();

    /// Tells screen readers on the focused island what the status line says.
    void AnnounceStatus() { announcer_.AnnounceStatus(*this); }
    CellNumber StatusIsland() const { return announcer_.StatusIsland(); }

    /// While switched off the board takes neither mouse nor keys.
    void SetTakesMouse(bool takes) { takesMouse_ = takes; }
    bool TakesMouse() const { return takesMouse_; }

    /// A place on the screen in twips on the board.
    Point OnBoard(const QPointF& global) const;

 signals:
    void FocusChanged();

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
    Point InContainer(const QPointF& global) const;

    Handlers& handlers_;
    QPixmap backing_;
    QtSurface surface_;
    double magnification_ = 0;  ///< of what is drawn
    bool stretched_ = false;    ///< the picture is one of another size, until the board is drawn anew
    IslandAnnouncer announcer_;
    bool takesMouse_ = true;
};

/// The container. It keeps the board in its middle, and what is painted over the board on top.
class BoardContainer final : public QWidget {
    Q_OBJECT

 public:
    explicit BoardContainer(Handlers& handlers, QWidget* parent = nullptr);

    BoardView& Board() { return *board_; }
    BoardOverlay& Overlay() { return *overlay_; }
    QSize sizeHint() const override;

    /// A place on the screen in the board's twips in the container.
    Point InContainer(const QPointF& global) const;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

 private:
    void MagnifyAt(double factor, const QPointF& global);

    Handlers& handlers_;
    BoardView* board_;
    BoardOverlay* overlay_;
    BoardTouch* touch_;
    bool busy_ = false;  ///< a job ran when the game was last looked at
};

/// The seam to both, and to the timer that takes the marker away.
class QtBoardPictures final : public BoardPictures {
 public:
    QtBoardPictures(BoardContainer& container, Handlers& handlers);

    Surface::Extent ContainerExtent() const override;
    Surface& Picture() override;
    double DragDistance() const override;
    void PlacePicture() override {
        container_.Board().Place();
        container_.Overlay().update();
    }
    void ShowOverlay() override { container_.Overlay().update(); }
    void SetEnabled(bool enabled) override { container_.Board().SetTakesMouse(enabled); }
    void SetVisible(bool visible) override { container_.Board().setVisible(visible); }
    bool IsVisible() const override { return !container_.Board().isHidden(); }
    void Freeze(bool frozen) override;
    void StartMarkerTime() override;
    void StopMarkerTime() override { timer1_.stop(); }

 private:
    BoardContainer& container_;
    Handlers& handlers_;
    QTimer timer1_;
};

}  // namespace tidewalk
