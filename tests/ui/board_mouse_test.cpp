// SPDX-License-Identifier: MIT
// The board under the mouse, and what it looks like. All of this may differ on a screen with two pixels for each.
#include <random>

#include "window_game.h"

namespace tidewalk::test {
namespace {

constexpr CellPlace kLeft{1, 3};
constexpr CellPlace kRight{1, 7};

TEST(BoardMouse, PuzzlesOfAllFormsArePlayedToTheEnd) {
    std::vector<std::string> wide(7, std::string(9, '.'));
    wide[3] = "2=======2";
    std::vector<std::string> large(25, "|" + std::string(23, '.') + "|");
    large.front() = large.back() = "2" + std::string(23, '-') + "2";
    WindowGame window({kSmallPuzzle, Record(wide), Record(large)});
    for (const char* const size : {"7x7", "7x9", "25x25"}) {
        EXPECT_EQ(Get(window.form, "GridSize"), size);
        const Puzzle puzzle = window.board.puzzle;
        for (const Link& link : puzzle.LinkList) {
            for (int bridge = 0; bridge < link.Bridges(); ++bridge)
                window.ClickIslands({puzzle.PlaceOf(link.first), puzzle.PlaceOf(link.second)});
        }
        EXPECT_EQ(2 * window.board.history.UndoList().size(), puzzle.NumberTotal());
        window.Expect("All Done!");
        window.Click("cmdverify");
        window.Click("arrows2");
    }
}

TEST(BoardMouse, ClicksAtOnePlaceNeedNoMoveBetweenThem) {
    WindowGame window;
    const auto selected = [&] { return CellPlace{window.board.AnchorRow, window.board.AnchorCol}; };
    for (const int expected : {1, 2, 0}) {
        window.ClickIslands({kLeft, kRight});
        EXPECT_EQ(window.Bridges(kLeft, kRight), expected);
    }
    // After every kind of move the next click is one on the island that the pointer is over.
    window.ClickIsland(kLeft);
    window.ClickIsland(kRight, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 2);
    EXPECT_FALSE(window.board.Line1.visible);
    window.ClickIsland(kRight);
    EXPECT_EQ(selected(), kRight);
    window.ClickIsland(kLeft, Qt::RightButton);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 0);
    window.ClickIsland(kLeft);
    EXPECT_EQ(selected(), kLeft);
    // Qt sends the second of two quick presses as a double click.
    QTest::mouseDClick(&window.view, Qt::LeftButton, {}, window.At(kLeft));
    EXPECT_EQ(selected(), kLeft) << "three clicks select, drop and select";
    // Shift with another key is no Shift, and the middle button plays nothing.
    window.ClickIsland(kRight, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 1);
    window.ClickIsland(kRight);
    window.ClickIsland(kLeft, Qt::MiddleButton);
    EXPECT_EQ(selected(), kRight);
    QTest::mouseClick(&window.form.Container(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(SelectedIsland(window.board), 0) << "a click beside the board";
}

TEST(BoardMouse, OnlyAReleaseOverTheBoardIsAClickAndOnlyWhileItTakesAny) {
    WindowGame window;
    const auto selectsWhenReleased = [&](QPoint at) {
        QTest::mousePress(&window.view, Qt::LeftButton, {}, window.At(kLeft));
        QMouseEvent release(QEvent::MouseButtonRelease, at, window.view.mapToGlobal(at), Qt::LeftButton, {}, {});
        QApplication::sendEvent(&window.view, &release);
        return SelectedIsland(window.board) != 0;
    };
    window.MoveTo(window.At(kLeft));
    EXPECT_FALSE(selectsWhenReleased({-3, 5}));
    window.game.pictures.SetEnabled(false);
    EXPECT_FALSE(selectsWhenReleased(window.At(kLeft)));
    window.game.pictures.SetEnabled(true);
    EXPECT_TRUE(selectsWhenReleased(window.At(kLeft)));
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
    const double half = window.board.layout.HalfCell / kTwipsPerPixel;
    // What is painted over the board lies around the island, so far from it, and goes down to `bottom`.
    const auto expectOverlay = [&](double distance, int bottom = 0) {
        const QImage bare = window.Bare();
        const QImage shown = window.Shown();
        QRect found;
        for (int y = 0; y < bare.height(); ++y) {
            for (int x = 0; x < bare.width(); ++x)
                found |= bare.pixel(x, y) == shown.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
        const qreal ratio = bare.devicePixelRatio();
        const QPoint island = window.At(kLeft);
        EXPECT_NEAR(found.left() / ratio, island.x() - distance, 2);
        EXPECT_NEAR(found.right() / ratio, island.x() + distance, 2);
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

TEST(BoardPicture, AfterEveryMoveIsAsAFreshRedrawWouldDrawIt) {
    const std::vector<std::string> dense{"4.4.4.4", "..3.3..", ".2...2.", "4.4.4.4", "..3.3..", ".2...2.", "4.4.4.4"};
    WindowGame window({kSmallPuzzle, Record(dense), Record({"2=2.2", "1...1", "2-3-2"})});
    std::mt19937 random(1);
    const auto draw = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const auto oneOf = [&](const auto& list) {
        return list[static_cast<std::size_t>(draw(static_cast<int>(list.size())))];
    };
    int played = 0;
    for (int step = 0; step < 500; ++step) {
        const int kind = draw(20);
        if (kind < 13) {
            window.ClickIsland(window.board.puzzle.PlaceOf(1 + draw(window.board.puzzle.CellCount())),
                               oneOf(std::array{Qt::LeftButton, Qt::LeftButton, Qt::RightButton}),
                               oneOf(std::array{Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier}));
        } else if (kind < 16) {
            const std::array keys{Qt::Key_Right, Qt::Key_Down, Qt::Key_Space, Qt::Key_Delete};
            QTest::keyClick(&window.view, oneOf(keys));
        } else if (kind < 19) {
            window.Click(oneOf(std::array{"cmdundo", "cmdzoom0", "cmdzoom1", "cmdzoom2", "cmdviewcol", "cmdverify"}));
        } else {
            window.game.options.ShowFinished = 1 - window.game.options.ShowFinished;
            window.game.options.NodeShape = 1 - window.game.options.NodeShape;
            window.Click("arrows2");
        }
        if (!window.board.history.UndoList().empty()) ++played;
        ASSERT_TRUE(window.Bare() == window.Fresh()) << "step " << step << ", kind " << kind;
    }
    EXPECT_GT(played, 200);
}

/// Watches all events: whether a widget is painted on the screen (a picture that a test grabs is painted for that
/// alone), and which timer of a second runs out.
class Watch final : public QObject {
 public:
    explicit Watch(QWidget& widget) : widget_(widget) { qApp->installEventFilter(this); }

    /// True when it was painted since the last call.
    bool IsPainted() {
        QCoreApplication::processEvents();
        return std::exchange(painted_, false);
    }
    QTimer* second = nullptr;

 private:
    bool eventFilter(QObject* object, QEvent* event) override {
        painted_ |= event->type() == QEvent::Paint && object == &widget_;
        auto* const timer = qobject_cast<QTimer*>(object);
        if (event->type() == QEvent::Timer && timer != nullptr && timer->interval() == 1000) second = timer;
        return false;
    }

    QWidget& widget_;
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
    WindowGame window;
    Watch watch(window.view);
    window.Click("cmdverify");
    // However long this takes: only that it comes to an end is told here.
    while (window.board.Shape1.visible)
        QCoreApplication::processEvents();
    ASSERT_NE(watch.second, nullptr);
    EXPECT_FALSE(watch.second->isActive());
    window.Click("cmdverify");
    EXPECT_TRUE(window.board.Shape1.visible);
    const int begun = watch.second->timerId();
    window.Click("cmdverify");
    EXPECT_EQ(watch.second->timerId(), begun) << "a second check must not begin the second anew";
    window.Click("cmdnew1");
    EXPECT_FALSE(watch.second->isActive()) << "another puzzle has no frame";
}

}  // namespace
}  // namespace tidewalk::test
