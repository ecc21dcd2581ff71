// SPDX-License-Identifier: MIT
// The board under the mouse, and what it looks like. All of this may differ on a screen with two pixels for each.
#include "ui/board_pixels.h"
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

TEST(BoardMouse, ADragFromAnIslandLaysAndOneBesideTheBoardMovesIt) {
    WindowGame window;
    const QPoint before = window.view.pos();
    const auto drag = [&](QPoint from, QPoint to) {
        QTest::mousePress(&window.view, Qt::LeftButton, {}, from);
        window.MoveTo(to, Qt::LeftButton);
        QTest::mouseRelease(&window.view, Qt::LeftButton, {}, to);
    };
    drag(window.At(kLeft), window.At(kRight));
    EXPECT_EQ(window.Bridges(kLeft, kRight), 1);
    const int near = QApplication::startDragDistance() - 1;
    drag(window.At(kLeft), window.At(kLeft) + QPoint(near, 0));
    EXPECT_EQ(SelectedIsland(window.board), window.board.puzzle.CellId(kLeft)) << "a hand that shakes clicks";
    QTest::mousePress(&window.view, Qt::LeftButton, {}, window.At(kLeft));
    window.MoveTo(window.At(kRight), Qt::LeftButton);
    QTest::keyClick(&window.view, Qt::Key_Escape);
    QTest::mouseRelease(&window.view, Qt::LeftButton, {}, window.At(kRight));
    EXPECT_EQ(window.Bridges(kLeft, kRight) * 100 + SelectedIsland(window.board), 100) << "Escape calls it off";
    EXPECT_EQ(window.view.pos(), before);
    BoardContainer& container = window.form.Container();
    QTest::mousePress(&container, Qt::LeftButton, {}, QPoint(4, 4));
    const QPointF to(34, 14);
    QMouseEvent move(QEvent::MouseMove, to, container.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&container, &move);
    QTest::mouseRelease(&container, Qt::LeftButton, {}, to.toPoint());
    EXPECT_EQ(window.view.pos() - before, QPoint(30, 10));
}

/// A touch screen.
struct TouchWindow : WindowGame {
    using Finger = std::pair<QPoint, QPoint>;

    explicit TouchWindow() {
        for (QTimer* const timer : form.Container().findChildren<QTimer*>())
            if (timer->isSingleShot()) timer->setInterval(60);
    }
    /// Fingers go down, move in four steps and come up again; the fewer milliseconds they rest before that the better.
    void Touch(const std::vector<Finger>& fingers, int rest = 0) {
        const auto all = [&](const std::function<void(QTest::QTouchEventWidgetSequence&, int, const Finger&)>& part) {
            QTest::QTouchEventWidgetSequence sequence = QTest::touchEvent(&view, Device());
            for (int i = 0; i < static_cast<int>(fingers.size()); ++i)
                part(sequence, i, fingers[static_cast<std::size_t>(i)]);
        };
        all([&](auto& touch, int id, const Finger& finger) { touch.press(id, finger.first, &view); });
        if (rest > 0) QTest::qWait(rest);
        const QPoint corner = view.mapToGlobal(QPoint());
        for (int step = 1; step <= 4; ++step) {
            // Places are those on the board as it lay when they were touched.
            const QPoint moved = view.mapToGlobal(QPoint()) - corner;
            all([&](auto& touch, int id, const Finger& finger) {
                touch.move(id, finger.first + (finger.second - finger.first) * step / 4 - moved, &view);
            });
        }
        const QPoint moved = view.mapToGlobal(QPoint()) - corner;
        all([&](auto& touch, int id, const Finger& finger) { touch.release(id, finger.second - moved, &view); });
    }
    void Tap(CellPlace cell, int rest = 0) { Touch({{At(cell), At(cell)}}, rest); }

    static QPointingDevice* Device() {
        static QPointingDevice* const device = QTest::createTouchDevice();
        return device;
    }
};

TEST(BoardTouch, FingersPlayAWholeGame) {
    TouchWindow window;
    window.Tap(kLeft);
    EXPECT_EQ(SelectedIsland(window.board), window.board.puzzle.CellId(kLeft));
    window.Tap(kRight);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 1);
    window.Touch({{window.At(kRight), window.At(kLeft)}});
    EXPECT_EQ(window.Bridges(kLeft, kRight), 2);
    EXPECT_EQ(window.board.history.Count(), 2) << "Qt makes no clicks of it besides";
    window.Tap({1, 5}, 200);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 0) << "a finger that rests on a bridge";
    window.Tap(kLeft);
    window.Tap(kRight, 200);
    EXPECT_TRUE(window.board.Marks(window.board.puzzle.CellId(kLeft), window.board.puzzle.CellId(kRight)));
    EXPECT_EQ(SelectedIsland(window.board), 0) << "and is no tap in the end";
    const QPoint before = window.view.pos();
    window.Touch({{QPoint(5, 5), QPoint(65, 45)}});
    EXPECT_EQ(window.view.pos() - before, QPoint(60, 40));
    const double magnification = window.board.magnification;
    const QPoint middle = window.view.rect().center();
    const int moves = window.board.history.Count();
    window.Touch({{window.At(kLeft), window.At(kLeft)}, {middle, middle + (middle - window.At(kLeft)) / 8}});
    EXPECT_NEAR(window.board.magnification, magnification * 1.125, 0.02) << "two fingers stretch it";
    EXPECT_EQ(window.board.history.Count(), moves);
    EXPECT_EQ(SelectedIsland(window.board), 0);
}

TEST(BoardPicture, RingBandFocusAndMarkerLieWhereTheyBelong) {
    WindowGame window;
    window.view.setFocus();
    const QImage bare = window.Shown();
    const double half = Pixels(window.board, window.board.layout.HalfCell);
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

TEST(BoardPicture, ASolvedPuzzleIsFramedBesideItsCells) {
    WindowGame window({Record({"1.1"})});
    BoardContainer& container = window.form.Container();
    const double pen = std::round(2 * window.board.layout.LineWidth * window.board.magnification);
    const double beside = Pixels(window.board, window.board.layout.HalfCell) + pen / 2;
    for (const bool solved : {false, true}) {
        const QImage shown = container.grab().toImage();
        for (const CellPlace cell : {CellPlace{1, 1}, {1, 3}}) {
            const QPointF side(cell.col == 1 ? -beside : beside, 0);
            const QPointF at = (window.view.mapTo(&container, window.At(cell)) + side) * shown.devicePixelRatio();
            EXPECT_EQ(shown.pixelColor(at.toPoint()) == ToQColor(window.game.options.ChainColour), solved) << cell.col;
        }
        window.ClickIslands({{1, 1}, {1, 3}});
    }
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
