// SPDX-License-Identifier: MIT
#include "window_game.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>

namespace tidewalk::test {
namespace {

/// Lays all bridges of the stored solution with clicks.
void PlaySolution(WindowGame& window) {
    const Game& game = window.game();
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link link = game.LinkList[i];
        const CellPlace a = game.PlaceOf(link.first);
        const CellPlace b = game.PlaceOf(link.second);
        for (int bridge = link.state; bridge < 2; ++bridge) {
            window.ClickIsland(a.row, a.col);
            window.ClickIsland(b.row, b.col);
        }
    }
}

TEST(BoardPlay, APuzzlePlayedWithTheMouseIsAllDone) {
    WindowGame window;
    PlaySolution(window);
    EXPECT_EQ(static_cast<int>(window.game().UndoList.size()), window.game().NumberTotal / 2);
    const BoxAnswer done("All Done!", "Ok");
    window.ClickButton("cmdverify");
}

TEST(BoardPlay, AnOblongAndALargeBoardArePlayedToTheEnd) {
    std::vector<std::string> wide(7, std::string(9, '.'));
    wide[3] = "2=======2";
    std::vector<std::string> large(25, std::string(25, '.'));
    large.front() = "2" + std::string(23, '-') + "2";
    large.back() = "2" + std::string(23, '-') + "2";
    for (std::size_t row = 1; row < 24; ++row)
        large[row].front() = large[row].back() = '|';
    WindowGame window({Record(wide), Record(large)});
    for (const char* const size : {"7x9", "25x25"}) {
        EXPECT_EQ(window.Find<QLineEdit>("GridSize").text(), size);
        PlaySolution(window);
        const BoxAnswer done("All Done!", "Ok");
        window.ClickButton("cmdverify");
        window.ClickButton("arrows2");
    }
}

TEST(BoardPlay, ClicksCycleABridgeAndShiftAndTheRightButtonShortenTheWay) {
    WindowGame window;
    for (const int expected : {1, 2, 0}) {
        window.ClickIsland(1, 3);
        window.ClickIsland(1, 7);
        EXPECT_EQ(window.Bridges(1, 3, 1, 7), expected);
    }
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 2);
    EXPECT_FALSE(window.game().Line1.visible);
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 0) << "Shift with another key is no Shift";
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7);
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7, Qt::RightButton);
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 0);
}

TEST(BoardPlay, AQuickSecondClickIsAClickToo) {
    WindowGame window;
    window.MoveTo(window.IslandAt(1, 3));
    QTest::mouseClick(&window.board(), Qt::LeftButton, {}, window.IslandAt(1, 3));
    EXPECT_TRUE(window.game().Line1.visible);
    // Qt sends the second press as a double click.
    QTest::mouseDClick(&window.board(), Qt::LeftButton, {}, window.IslandAt(1, 3));
    EXPECT_TRUE(window.game().Line1.visible) << "three clicks select, drop and select";
}

TEST(BoardPlay, AfterADoubleBridgeTheSameIslandIsSelectedWithoutMovingThePointer) {
    WindowGame window;
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7, Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseClick(&window.board(), Qt::LeftButton, {}, window.IslandAt(1, 7));
    EXPECT_TRUE(window.game().Line1.visible);
}

TEST(BoardPlay, AReleaseBesideTheBoardIsNoClick) {
    WindowGame window;
    window.MoveTo(window.IslandAt(1, 3));
    QTest::mousePress(&window.board(), Qt::LeftButton, {}, window.IslandAt(1, 3));
    const QPoint outside(-3, 5);
    QMouseEvent release(QEvent::MouseButtonRelease, outside, window.board().mapToGlobal(outside), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&window.board(), &release);
    EXPECT_FALSE(window.game().Line1.visible);
}

TEST(BoardPlay, TheBoardFollowsADragAndComesBackToTheMiddleOnResize) {
    WindowGame window;
    const QPoint before = window.board().pos();
    const QPoint grip(5, 5);
    QTest::mousePress(&window.board(), Qt::LeftButton, {}, grip);
    const QPoint global = window.board().mapToGlobal(grip) + QPoint(40, -25);
    window.MoveTo(window.board().mapFromGlobal(global), Qt::LeftButton);
    EXPECT_EQ(window.board().pos() - before, QPoint(40, -25));
    window.form().resize(window.form().size() + QSize(60, 40));
    QCoreApplication::processEvents();
    const QPoint middle = window.board().geometry().center() - window.form().Container().rect().center();
    EXPECT_LE(middle.manhattanLength(), 2);
}

TEST(BoardPlay, AWrongCheckFramesTheIslandForASecond) {
    WindowGame window;
    window.ClickButton("cmdverify");
    EXPECT_EQ(window.Find<QLabel>("pb").text(), "Not done yet");
    const QPoint corner = window.IslandAt(1, 3) - QPoint(1, 1) * qRound(window.game().HalfCell / kTwipsPerPixel);
    const QColor framed = window.ColourAt(corner);
    EXPECT_GT(framed.red(), 150);
    EXPECT_LT(framed.green(), 120);
    QTest::qWait(500);
    window.ClickButton("cmdverify");
    QTest::qWait(650);
    EXPECT_FALSE(window.game().Shape1.visible) << "a second check must not begin the second anew";
    EXPECT_NE(window.ColourAt(corner), framed);
}

TEST(BoardPlay, TheSolutionShowsWhileItsButtonIsHeld) {
    WindowGame window;
    const QImage played = window.board().grab().toImage();
    QTest::mousePress(&window.Button("cmdviewcol"), Qt::LeftButton);
    EXPECT_NE(window.board().grab().toImage(), played);
    QTest::mouseRelease(&window.Button("cmdviewcol"), Qt::LeftButton);
    EXPECT_EQ(window.board().grab().toImage(), played);
    QTest::keyPress(&window.Button("cmdviewcol"), Qt::Key_Space);
    EXPECT_NE(window.board().grab().toImage(), played);
    QTest::keyRelease(&window.Button("cmdviewcol"), Qt::Key_Space);
    EXPECT_EQ(window.board().grab().toImage(), played);
}

/// Counts how often a widget is painted on the screen; a picture that a test grabs is painted for that alone.
class PaintCounter final : public QObject {
 public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    /// How often since the last call.
    int Count() {
        QCoreApplication::processEvents();
        return std::exchange(count_, 0);
    }

 private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count_;
        return false;
    }

    int count_ = 0;
};

TEST(BoardPlay, WhatACommandDrawsComesToTheScreen) {
    WindowGame window;
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7);
    PaintCounter painted(window.board());
    QTest::qWait(50);
    painted.Count();
    EXPECT_EQ(painted.Count(), 0);
    window.Find<QAction>("cmdundo").trigger();
    EXPECT_GT(painted.Count(), 0);
    QTest::mousePress(&window.Button("cmdviewcol"), Qt::LeftButton);
    EXPECT_GT(painted.Count(), 0);
    QTest::mouseRelease(&window.Button("cmdviewcol"), Qt::LeftButton);
    EXPECT_GT(painted.Count(), 0);
    window.Find<QAction>("mnuautosol").trigger();
    EXPECT_GT(painted.Count(), 0);
}

TEST(BoardPlay, TheBoardIsAsFineAsTheScreen) {
    WindowGame window;
    const QImage image = window.board().grab().toImage();
    const qreal ratio = window.board().devicePixelRatioF();
    ASSERT_EQ(image.size(), (QSizeF(window.board().size()) * ratio).toSize());
    if (ratio != 2) return;
    int finer = 0;
    for (int y = 0; y + 1 < image.height(); y += 2) {
        for (int x = 0; x + 1 < image.width(); x += 2) {
            if (image.pixel(x, y) != image.pixel(x + 1, y) || image.pixel(x, y) != image.pixel(x, y + 1)) ++finer;
        }
    }
    EXPECT_GT(finer, 50) << "a picture that was only enlarged has none of these";
}

TEST(BoardPlay, MovesShowInTheUndoListAndAreTakenBack) {
    WindowGame window;
    auto& list = window.Find<QListView>("UndoList");
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7);
    window.ClickIsland(1, 3);
    window.ClickIsland(3, 3);
    ASSERT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), " 3, 17, 0");
    window.ClickButton("cmdundo");
    window.Find<QAction>("cmdundo").trigger();
    EXPECT_EQ(list.model()->rowCount(), 0);
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 0);
    EXPECT_EQ(window.Bridges(1, 3, 3, 3), 0);
}

}  // namespace
}  // namespace tidewalk::test
