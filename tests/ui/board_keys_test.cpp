// SPDX-License-Identifier: MIT
#include "board/board_keys.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>

#include "ui/board_accessible.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// The window in front, as on a desktop: only then has the board the keyboard.
struct KeyWindow : WindowGame {
    explicit KeyWindow(const std::vector<std::string>& records = {kSmallPuzzle}) : WindowGame(records) {
        form().activateWindow();
        board().setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    CellNumber Focused() { return FocusedIsland(game()); }
    CellNumber At(int row, int col) { return game().CellId(row, col); }

    /// Goes to an island with Page Up and Page Down.
    void GoTo(CellNumber to) {
        while (Focused() != to) {
            const CellNumber before = Focused();
            Press(before < to ? Qt::Key_PageDown : Qt::Key_PageUp);
            ASSERT_NE(Focused(), before);
        }
    }
};

TEST(BoardKeys, APuzzlePlayedWithTheKeyboardIsAllDone) {
    KeyWindow window;
    window.Press(Qt::Key_Home);
    for (int i = 1; i <= window.game().LinkCount(); ++i) {
        const Link link = window.game().LinkList[i];
        if (link.state == 2) continue;
        window.GoTo(link.first);
        window.Press(i % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
        window.GoTo(link.second);
        window.Press(Qt::Key_Enter, link.state == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
    const BoxAnswer done("All Done!", "Ok");
    window.Press(Qt::Key_F5);
}

TEST(BoardKeys, EveryKeyDoesItsPart) {
    KeyWindow window;
    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Focused(), window.At(1, 3)) << "the first key shows where the focus is";
    window.Press(Qt::Key_Right, Qt::KeypadModifier);
    EXPECT_EQ(window.Focused(), window.At(1, 7));
    window.Press(Qt::Key_Space);
    window.Press(Qt::Key_Left);
    window.Press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 2);
    for (const int key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        window.Press(Qt::Key_Return);
        window.Press(key == Qt::Key_Delete ? Qt::Key_Right : Qt::Key_Left);
        window.Press(key);
        EXPECT_EQ(window.Bridges(1, 3, 1, 7), 0);
        window.game().BridgeState.Set(window.At(1, 3), window.At(1, 7), 1);
    }
    window.Press(Qt::Key_Return);
    EXPECT_TRUE(window.game().Line1.visible);
    window.Press(Qt::Key_Escape);
    EXPECT_FALSE(window.game().Line1.visible);
    window.Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(window.Focused(), window.At(1, 3)) << "keys with Ctrl belong to others";
}

TEST(BoardKeys, AKeyThatIsHeldDownWalksButLaysOnce) {
    KeyWindow window;
    window.Press(Qt::Key_Home);
    const auto repeat = [&](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&window.board(), &event);
    };
    repeat(Qt::Key_Right);
    EXPECT_EQ(window.Focused(), window.At(1, 7));
    repeat(Qt::Key_Return);
    EXPECT_FALSE(window.game().Line1.visible);
}

TEST(BoardKeys, TheFocusShowsOnlyWhileTheKeyboardIsInUse) {
    KeyWindow window;
    const QImage still = window.board().grab().toImage();
    window.Press(Qt::Key_Home);
    const QImage focused = window.board().grab().toImage();
    EXPECT_NE(focused, still);
    window.Find<QWidget>("UndoList").setFocus();
    EXPECT_EQ(window.board().grab().toImage(), still) << "the keyboard is elsewhere";
    window.board().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(window.board().grab().toImage(), focused);
    QTest::mouseClick(&window.board(), Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ(window.board().grab().toImage(), still) << "the mouse was used last";
}

TEST(BoardKeys, TabToTheBoardGivesAnIslandTheFocus) {
    KeyWindow window;
    window.Find<QWidget>("UndoList").setFocus();
    EXPECT_EQ(window.Focused(), 0);
    window.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &window.board());
    EXPECT_EQ(window.Focused(), window.At(1, 3));
}

TEST(BoardKeys, AScreenReaderHearsWhereTheFocusIsAndWhatChanges) {
    KeyWindow window;
    std::vector<std::string> said;
    // On a desktop without screen readers nobody is told, so the test has an announcer of its own.
    IslandAnnouncer announcer([&](QAccessibleInterface* island, QAccessible::Event what) {
        said.push_back((what == QAccessible::Focus ? "focus: " : "name: ") +
                       island->text(QAccessible::Name).toStdString());
    });
    QObject::connect(&window.program->handlers(), &Handlers::Changed, &window.board(),
                     [&] { announcer.Announce(window.board()); });
    const auto heard = [&] { return std::exchange(said, {}); };
    const std::string left = "row 1, column 3, needs " + std::to_string(window.game().IslandGrid(1, 3)) + ", has ";
    const std::string right = "row 1, column 7, needs " + std::to_string(window.game().IslandGrid(1, 7)) + ", has ";
    using Lines = std::vector<std::string>;
    window.Press(Qt::Key_Home);
    EXPECT_EQ(heard(), (Lines{"focus: " + left + "0"}));
    window.Press(Qt::Key_Space);
    EXPECT_EQ(heard(), Lines{});
    window.Press(Qt::Key_Right);
    EXPECT_EQ(heard(), (Lines{"focus: " + right + "0"}));
    window.Press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(heard(), (Lines{"name: " + left + "2", "name: " + right + "2"}));
    window.Find<QAction>("cmdundo").trigger();
    EXPECT_EQ(heard(), (Lines{"name: " + left + "0", "name: " + right + "0"}));
}

TEST(BoardKeys, EveryIslandIsAChildOfTheBoard) {
    KeyWindow window({kSmallPuzzle, Record({"1-1"})});
    QAccessibleInterface* const board = QAccessible::queryAccessibleInterface(&window.board());
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->text(QAccessible::Name), "Board");
    int needs = 0;
    for (int i = 0; i < board->childCount(); ++i) {
        QAccessibleInterface* const island = board->child(i);
        EXPECT_EQ(board->indexOfChild(island), i);
        EXPECT_EQ(island->parent(), board);
        EXPECT_EQ(board->childAt(island->rect().center().x(), island->rect().center().y()), island);
        needs += island->text(QAccessible::Name).section(" needs ", 1).section(',', 0, 0).toInt();
    }
    EXPECT_EQ(needs, window.game().NumberTotal);
    EXPECT_EQ(board->child(-1), nullptr);
    EXPECT_EQ(board->child(board->childCount()), nullptr);
    QAccessibleInterface* const first = board->child(0);
    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(first->state().selected);
    EXPECT_TRUE(first->state().focused);
    EXPECT_EQ(board->focusChild(), first);
    window.game().BusyFlag = YesValue;
    EXPECT_EQ(board->childCount(), 0) << "the grids are the job's";
    EXPECT_FALSE(first->isValid());
    window.game().BusyFlag = NoValue;
    window.ClickButton("arrows2");
    EXPECT_FALSE(first->isValid()) << "that board is gone";
    EXPECT_EQ(first->text(QAccessible::Name), "");
    EXPECT_EQ(board->childCount(), 2);
    EXPECT_EQ(board->child(1)->text(QAccessible::Name), "row 1, column 3, needs 1, has 0");
}

TEST(BoardKeys, EveryControlOfTheWindowHasANameToBeReadOut) {
    KeyWindow window;
    for (QWidget* const widget : window.form().findChildren<QWidget*>()) {
        // What Qt makes inside of a control is read out with it.
        const bool inside = widget->inherits("QComboBoxListView") || widget->objectName().startsWith("qt_");
        if (widget->focusPolicy() == Qt::NoFocus || inside) continue;
        QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(control, nullptr);
        EXPECT_FALSE(control->text(QAccessible::Name).isEmpty())
            << widget->objectName().toStdString() << " " << widget->metaObject()->className();
    }
}

}  // namespace
}  // namespace tidewalk::test
