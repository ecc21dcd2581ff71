// SPDX-License-Identifier: MIT
// The board under the mouse, and what it looks like. All of this may differ on a screen with two pixels for each.
#include "window_game.h"

namespace tidewalk::test {
namespace {

constexpr CellPlace kLeft{1, 3};
constexpr CellPlace kRight{1, 7};

TEST(BoardMouse, ClicksAtOnePlaceNeedNoMoveBetweenThem) {
    WindowGame window;
    const auto selected = [&] { return CellPlace{window.board.AnchorRow, window.board.AnchorCol}; };
    for (const int expected : {1, 2, 0}) {
        window.ClickIslands({kLeft, kRight});
        EXPECT_EQ(window.Bridges(kLeft, kRight), expected);
    }
    window.ClickIsland(kLeft);
    window.ClickIsland(kRight, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 2);
    window.ClickIslands({kLeft, kRight, kLeft});
    // Shift with another key is no Shift, and the middle button plays nothing.
    window.ClickIsland(kRight, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 1);
    window.ClickIsland(kRight);
    window.ClickIsland(kLeft, Qt::MiddleButton);
    EXPECT_EQ(selected(), kRight);
    window.ClickIsland(kLeft, Qt::RightButton);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 0);
    window.ClickIsland(kLeft);
    // Qt sends the second of two quick presses as a double click.
    QTest::mouseDClick(&window.view, Qt::LeftButton, {}, window.At(kLeft));
    EXPECT_EQ(selected(), kLeft) << "three clicks select, drop and select";
    QTest::mouseClick(&window.form.Container(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(SelectedIsland(window.board), 0) << "a click beside the board";
}

TEST(BoardMouse, OnlyAReleaseOverTheBoardIsAClickAndOnlyWhileItTakesAny) {
    WindowGame window;
    window.MoveTo(window.At(kLeft));
    QTest::mousePress(&window.view, Qt::LeftButton, {}, window.At(kLeft));
    const QPointF outside(-3, 5);
    QMouseEvent release(QEvent::MouseButtonRelease, outside, window.view.mapToGlobal(outside), Qt::LeftButton, {}, {});
    QApplication::sendEvent(&window.view, &release);
    EXPECT_EQ(SelectedIsland(window.board), 0);
    for (const bool takesAny : {false, true}) {
        window.game.pictures.SetEnabled(takesAny);
        window.ClickIsland(kLeft);
        EXPECT_EQ(SelectedIsland(window.board) != 0, takesAny);
    }
}

TEST(BoardMouse, TheBoardFollowsADragAndComesBackToTheMiddleOnResize) {
    WindowGame window;
    const QPoint before = window.view.pos();
    const QPoint to = window.view.mapToGlobal(QPoint(45, -20));
    window.MoveTo(window.view.mapFromGlobal(to));
    EXPECT_EQ(window.view.pos(), before) << "no button is held";
    QTest::mousePress(&window.view, Qt::LeftButton, {}, {5, 5});
    window.MoveTo(window.view.mapFromGlobal(to), Qt::LeftButton);
    EXPECT_EQ(window.view.pos() - before, QPoint(40, -25));
    window.form.resize(window.form.size() + QSize(60, 40));
    QCoreApplication::processEvents();
    const QPoint middle = window.view.geometry().center() - window.form.Container().rect().center();
    EXPECT_LE(middle.manhattanLength(), 2);
}

TEST(BoardPicture, RingBandFocusAndMarkerLieWhereTheyBelong) {
    WindowGame window;
    window.view.setFocus();
    const QImage bare = window.Shown();
    const double half = window.board.layout.HalfCell / kTwipsPerPixel;
    // What is painted over the board lies around the island, so far from it, and goes down to `bottom`.
    const auto expectOverlay = [&](double distance, int bottom = 0) {
        const QImage shown = window.Shown();
        QRect found;
        for (int y = 0; y < bare.height(); ++y) {
            for (int x = 0; x < bare.width(); ++x)
                found |= bare.pixel(x, y) == shown.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
        const qreal ratio = bare.devicePixelRatio();
        const QPoint island = window.At(kLeft);
        EXPECT_NEAR(found.left() / ratio, island.x() - distance, 2);
        EXPECT_NEAR(found.top() / ratio, island.y() - distance, 2);
        EXPECT_NEAR(found.bottom() / ratio, bottom != 0 ? bottom : island.y() + distance, 2);
    };
    window.ClickIsland(kLeft);
    expectOverlay(half * 1.06 + 4);
    const QPoint pointer = window.At(kLeft) + QPoint(0, 150);
    window.MoveTo(pointer);
    expectOverlay(half * 1.06 + 4, pointer.y());
    DropSelection(window.board);
    QTest::keyClick(&window.view, Qt::Key_Home);
    expectOverlay(half + 2);
    window.board.focusShows = false;
    window.Click("cmdverify");
    expectOverlay(half + 2);
}

/// Watches whether a widget is painted on the screen: a picture that a test grabs is painted for that alone.
class Watch final : public QObject {
 public:
    explicit Watch(QWidget& widget) { widget.installEventFilter(this); }

    /// True when it was painted since the last call.
    bool IsPainted() {
        QCoreApplication::processEvents();
        return std::exchange(painted_, false);
    }

 private:
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ |= event->type() == QEvent::Paint;
        return false;
    }

    bool painted_ = false;
};

TEST(BoardPicture, ComesToTheScreenWithEveryChange) {
    WindowGame window;
    window.form.activateWindow();
    window.view.setFocus();
    window.ClickIslands({kLeft, kRight});
    Watch watch(window.view);
    while (watch.IsPainted()) {
    }
    auto& button = Of(window.form, "cmdviewcol");
    const QImage played = window.Shown();
    for (const bool byKey : {false, true}) {
        byKey ? QTest::keyPress(&button, Qt::Key_Space) : QTest::mousePress(&button, Qt::LeftButton);
        EXPECT_TRUE(watch.IsPainted());
        EXPECT_NE(window.Shown(), played) << "the solution shows while the button is held";
        byKey ? QTest::keyRelease(&button, Qt::Key_Space) : QTest::mouseRelease(&button, Qt::LeftButton);
        EXPECT_TRUE(watch.IsPainted());
        EXPECT_EQ(window.Shown(), played);
    }
    const std::vector<std::function<void()>> changes{
        [&] { window.Trigger("cmdundo"); }, [&] { window.Trigger("mnuautosol"); },
        [&] { window.ClickIsland(kLeft); }, [&] { window.MoveTo(window.At({5, 5})); },
        [&] { window.view.clearFocus(); },  [&] { window.Click("cmdverify"); }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        EXPECT_TRUE(watch.IsPainted()) << i;
    }
    window.view.update();
    window.game.pictures.Freeze(true);
    EXPECT_TRUE(watch.IsPainted()) << "what was drawn before still comes";
    window.Trigger("cmdzoom1");
    EXPECT_FALSE(watch.IsPainted());
    window.game.pictures.Freeze(false);
    EXPECT_TRUE(watch.IsPainted());
}

TEST(Board, AWrongCheckFramesTheIslandForASecondFromTheFirst) {
    for (const bool another : {false, true}) {
        WindowGame window;
        window.Click("cmdverify");
        QTest::qWait(300);
        if (another) window.Click("cmdnew1");
        // However long all this takes, timers run out in their order.
        QTimer later;
        later.setSingleShot(true);
        later.start(900);
        window.Click("cmdverify");
        EXPECT_TRUE(window.board.Shape1.visible);
        while (window.board.Shape1.visible)
            QCoreApplication::processEvents();
        EXPECT_EQ(later.isActive(), !another) << "only another puzzle begins the second anew";
    }
}

}  // namespace
}  // namespace tidewalk::test
