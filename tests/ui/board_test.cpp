// SPDX-License-Identifier: MIT
// The board under the mouse, fingers and keys, what it looks like, and how a screen reader meets it. But for the keys
// all of this may differ on a screen with two pixels for each.
#include "board/board_keys.h"
#include "game/job.h"
#include "ui/board_accessible.h"
#include "ui/board_pixels.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

constexpr CellPlace kLeft{1, 3};
constexpr CellPlace kRight{1, 7};

TEST(BoardMouse, ClicksAtOnePlaceNeedNoMoveBetweenThem) {
    WindowGame window;
    const auto selected = [&] { return CellPlace{window.board.AnchorRow, window.board.AnchorCol}; };
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

TEST(BoardMouse, ADragFromAnIslandLaysAndOneBesideTheBoardMovesItUntilAResize) {
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
    EXPECT_EQ(window.view.pos(), before);
    BoardContainer& container = window.form.Container();
    QTest::mousePress(&container, Qt::LeftButton, {}, QPoint(4, 4));
    const QPointF to(34, 14);
    QMouseEvent move(QEvent::MouseMove, to, container.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&container, &move);
    QTest::mouseRelease(&container, Qt::LeftButton, {}, to.toPoint());
    EXPECT_EQ(window.view.pos() - before, QPoint(30, 10));
    window.form.resize(window.form.size() + QSize(60, 40));
    QCoreApplication::processEvents();
    EXPECT_LE((window.view.geometry().center() - container.rect().center()).manhattanLength(), 2);
}

/// A touch screen.
struct TouchWindow : WindowGame {
    using Finger = std::pair<QPoint, QPoint>;

    /// Fingers go down, rest for so many milliseconds, move in four steps and come up again. Those that shall not rest
    /// do not, however slow the machine is.
    void Touch(const std::vector<Finger>& fingers, int rest = 0) {
        constexpr int kNever = 60000;
        for (QTimer* const timer : form.Container().findChildren<QTimer*>())
            if (timer->isSingleShot()) timer->setInterval(rest > 0 ? rest / 3 : kNever);
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
        EXPECT_EQ(window.Shown(), played);
    }
    window.ClickIsland(kLeft);
    EXPECT_TRUE(watch.IsPainted());
    window.MoveTo(window.At({5, 5}));
    EXPECT_TRUE(watch.IsPainted()) << "the band";
    window.Click("cmdverify");
    EXPECT_TRUE(watch.IsPainted()) << "the marker";
    window.view.update();
    window.game.pictures.Freeze(true);
    EXPECT_TRUE(watch.IsPainted()) << "what was drawn before still comes";
    window.Trigger("cmdzoom0");
    EXPECT_FALSE(watch.IsPainted());
    window.game.pictures.Freeze(false);
    EXPECT_TRUE(watch.IsPainted());
}

TEST(Board, AWrongCheckFramesTheIslandForASecondFromTheFirst) {
    WindowGame window;
    window.Click("cmdverify");
    QTest::qWait(300);
    // However long all this takes, timers run out in their order.
    QTimer later;
    later.setSingleShot(true);
    later.start(900);
    window.Click("cmdverify");
    EXPECT_TRUE(window.board.Shape1.visible);
    while (window.board.Shape1.visible)
        QCoreApplication::processEvents();
    EXPECT_TRUE(later.isActive()) << "only another puzzle begins the second anew";
}

/// The window in front, as on a desktop: only then has the board the keyboard.
struct KeyWindow : WindowGame {
    explicit KeyWindow(const std::vector<std::string>& records = {kSmallPuzzle}) : WindowGame(records) {
        form.activateWindow();
        view.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    CellPlace Focused() const { return {board.FocusRow, board.FocusCol}; }
};

TEST(Board, ZoomingIsGreyWhereNothingWouldComeOfIt) {
    KeyWindow window;
    const auto grey = [&](const char* name) {
        return std::pair{!Of<QAction>(window.form, name).isEnabled(), !Of<BoxControl>(window.form, name).isEnabled()};
    };
    EXPECT_EQ(grey("cmdzoom1"), (std::pair{true, true})) << "small boards begin with the largest cells";
    window.Click("cmdzoom0");
    EXPECT_EQ(grey("cmdzoom1"), (std::pair{false, false}));
    Of(window.form, "cmdzoom1").setFocus();
    for (int press = 0; press < 3; ++press)
        window.Key(Qt::Key_Space);
    EXPECT_EQ(grey("cmdzoom1"), (std::pair{true, false})) << "else the next button would take the key";
    EXPECT_EQ(window.board.layout.CellSize, kLargestCell);
}

TEST(BoardKeys, EveryKeyDoesItsPart) {
    KeyWindow window;
    window.Key(Qt::Key_Down);
    EXPECT_EQ(window.Focused(), kLeft) << "the first key shows where the focus is";
    const std::vector<std::pair<Qt::Key, CellPlace>> walk{
        {Qt::Key_Right, kRight}, {Qt::Key_Down, {3, 7}},   {Qt::Key_Left, {3, 3}}, {Qt::Key_Up, kLeft},
        {Qt::Key_End, {7, 7}},   {Qt::Key_PageUp, {7, 4}}, {Qt::Key_Home, kLeft},  {Qt::Key_PageDown, kRight}};
    for (const auto& [key, place] : walk) {
        window.Key(key, Qt::KeypadModifier);
        EXPECT_EQ(window.Focused(), place) << key;
    }
    for (const int remove : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_X}) {
        window.Key(Qt::Key_Space);
        window.Key(Qt::Key_Left);
        window.Key(Qt::Key_Enter, Qt::ShiftModifier | Qt::KeypadModifier);
        EXPECT_EQ(window.Bridges(kLeft, kRight), 2);
        window.Key(Qt::Key_Return);
        window.Key(Qt::Key_Right);
        window.Key(remove);
        EXPECT_EQ(window.Bridges(kLeft, kRight), 0);
    }
    window.Key(Qt::Key_F5);
    EXPECT_EQ(Get(window.form, "pb"), "Not done yet") << "shortcuts are in force";
    window.Key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(window.Bridges(kLeft, kRight), 1) << "with Ctrl an arrow lays at once, and the focus stays";
    window.Trigger("cmdundo");
    // Arrows with Shift belong to others; a board that takes no mouse takes no keys.
    window.Key(Qt::Key_Left, Qt::ShiftModifier);
    window.game.pictures.SetEnabled(false);
    window.Key(Qt::Key_End);
    EXPECT_EQ(window.Focused(), kRight);
    window.game.pictures.SetEnabled(true);
    DropSelection(window.board);
    window.Key(Qt::Key_Return);
    const auto held = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), true);
        QApplication::sendEvent(&window.view, &event);
    };
    held(Qt::Key_Left);
    EXPECT_EQ(window.Focused(), kLeft);
    const auto before = window.board.history.Revision();
    held(Qt::Key_Return);
    held(Qt::Key_Return, Qt::ShiftModifier);
    held(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(window.board.history.Revision(), before) << "a key that is held down walks, but lays no bridge";
}

TEST(BoardKeys, TheFocusComesWithTabAndShowsOnlyWhileTheKeyboardIsInUse) {
    KeyWindow window;
    const QImage still = window.Shown();
    Of(window.form, "UndoList").setFocus();
    window.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &window.view);
    EXPECT_EQ(window.Focused(), kLeft);
    const QImage focused = window.Shown();
    EXPECT_NE(focused, still);
    Of(window.form, "UndoList").setFocus();
    EXPECT_EQ(window.Shown(), still) << "the keyboard is elsewhere";
    window.view.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(window.Shown(), focused);
    QTest::mouseClick(&window.view, Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ(window.Shown(), still) << "the mouse was used last";
    window.view.clearFocus();
    window.view.setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_EQ(window.Shown(), still) << "a window that comes to the front shows no more than before";
}

TEST(ScreenReader, HearsWhereTheFocusIsAndWhatChanges) {
    KeyWindow window({kSmallPuzzle, Record({"1-1"})});
    QStringList said;
    // On a desktop without screen readers nobody is told, so the test has an announcer of its own.
    IslandAnnouncer announcer([&](QAccessibleInterface* island, QAccessible::Event what) {
        said += (what == QAccessible::Focus ? "focus: " : "name: ") + island->text(QAccessible::Name);
    });
    QObject::connect(&window.program.handlers(), &Handlers::Changed, &window.view,
                     [&] { announcer.Announce(window.view); });
    const auto heard = [&] { return std::exchange(said, {}).join("; ").toStdString(); };
    const std::string left = "row 1, column 3, needs 4, has ";
    const std::string right = "row 1, column 7, needs 2, has ";
    window.Key(Qt::Key_Home);
    EXPECT_EQ(heard(), "focus: " + left + "0");
    window.Key(Qt::Key_Space);
    EXPECT_EQ(heard(), "");
    window.Key(Qt::Key_Right);
    EXPECT_EQ(heard(), "focus: " + right + "0");
    window.Key(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(heard(), "name: " + left + "2; name: " + right + "2");
    window.Click("arrows2");
    EXPECT_EQ(heard(), "") << "another puzzle is no news of its islands, and none has the focus";
}

TEST(ScreenReader, FindsEveryIslandAsAChildOfTheBoard) {
    KeyWindow window({kSmallPuzzle, Record({"1-1"})});
    QAccessibleInterface* const board = QAccessible::queryAccessibleInterface(&window.view);
    EXPECT_EQ(board->text(QAccessible::Name), "Board");
    int needs = 0;
    for (int i = 0; i < board->childCount(); ++i) {
        QAccessibleInterface* const island = board->child(i);
        EXPECT_EQ(board->indexOfChild(island), i);
        EXPECT_EQ(island->parent(), board);
        EXPECT_EQ(board->childAt(island->rect().center().x(), island->rect().center().y()), island);
        needs += island->text(QAccessible::Name).section(" needs ", 1).section(',', 0, 0).toInt();
    }
    EXPECT_EQ(needs, window.board.puzzle.NumberTotal());
    const QPoint water = window.view.mapToGlobal(window.At({7, 1}));
    EXPECT_EQ(board->childAt(water.x(), water.y()), nullptr);
    QAccessibleInterface* const first = board->child(0);
    first->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(first->state().focused && !first->state().selected && !board->child(1)->state().focused);
    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(first->state().selected);
    EXPECT_EQ(board->focusChild(), first);
    {
        const Job job(window.game, "AutoSolve");
        EXPECT_EQ(board->childCount(), 0) << "the board is the job's";
        EXPECT_FALSE(first->isValid());
    }
    window.Click("arrows2");
    EXPECT_FALSE(first->isValid()) << "that board is gone";
    EXPECT_EQ(board->childCount(), 2);
}

TEST(ScreenReader, ReadsTheStatusLineWhereItIsTheMovesAndWhereACheckHasEnded) {
    KeyWindow window;
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Space, Qt::Key_Right, Qt::Key_Space})
        window.Key(key);
    window.Trigger("cmdverify");
    const std::string where = "row 1, column 3, needs 4, has 1";
    const auto read = [](QAccessibleInterface* what, QAccessible::Text part) { return what->text(part).toStdString(); };
    IslandAnnouncer([&](QAccessibleInterface* island, QAccessible::Event) {
        EXPECT_EQ(read(island, QAccessible::Name), "row 1, column 7, needs 2, has 1") << "the one with the focus";
        EXPECT_EQ(read(island, QAccessible::Description), "Not done yet: " + where);
    }).AnnounceStatus(window.view);
    QAccessibleInterface* const status = QAccessible::queryAccessibleInterface(&Of(window.form, "pb"));
    EXPECT_EQ(read(status, QAccessible::Name) + ": " + read(status, QAccessible::Description),
              "Not done yet: " + where);
    QAccessibleInterface* const moves = QAccessible::queryAccessibleInterface(&Of(window.form, "UndoList"));
    EXPECT_EQ(read(moves->child(0), QAccessible::Name), "row 1, column 3 to row 1, column 7: 0 to 1");
}

TEST(ScreenReader, HearsOfMarksAndOfMistakes) {
    KeyWindow window({Record({"1.2.2", ".1...", "1....", ".1...", "....2"})});
    const auto name = [&](CellPlace cell) {
        return IslandName(window.game, window.board.puzzle.CellId(cell)).toStdString();
    };
    window.ClickIsland({1, 1});
    window.ClickIsland({1, 3}, Qt::RightButton);
    EXPECT_EQ(name({1, 1}), "row 1, column 1, needs 1, has 0, no bridge to row 1, column 3");
    window.Click("cmdundo");
    window.ClickIslands({{1, 1}, {3, 1}, {2, 2}, {4, 2}, {1, 3}, {1, 5}, {1, 3}, {1, 5}, {1, 1}, {1, 3}});
    EXPECT_EQ(name({1, 3}), "row 1, column 3, needs 2, has 3") << "nobody wants to know";
    window.game.options.ShowOverfull = window.game.options.ShowClosedGroups = true;
    EXPECT_EQ(name({1, 3}), "row 1, column 3, needs 2, has 3, too many bridges, in a closed group");
}

TEST(ScreenReader, HasANameForEveryControlOfTheWindow) {
    KeyWindow window;
    for (QWidget* const widget : window.form.findChildren<QWidget*>()) {
        // What Qt makes inside of a control is read out with it.
        const bool inside = widget->inherits("QComboBoxListView") || widget->objectName().startsWith("qt_");
        if (widget->focusPolicy() == Qt::NoFocus || inside) continue;
        const QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(control->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
        EXPECT_FALSE(control->text(QAccessible::Description).contains('<')) << widget->objectName().toStdString();
    }
}

}  // namespace
}  // namespace tidewalk::test
