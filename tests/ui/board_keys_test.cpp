// SPDX-License-Identifier: MIT
// The board under the keyboard, and as a screen reader meets it.
#include "board/board_keys.h"

#include "game/job.h"
#include "ui/board_accessible.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

constexpr CellPlace kLeft{1, 3};
constexpr CellPlace kRight{1, 7};

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

TEST(BoardKeys, ABoardLargerThanAnOblongWindowMovesAfterTheFocus) {
    KeyWindow window;
    BoardContainer& container = window.form.Container();
    for (const QSize size : {QSize(900, 280), QSize(300, 700)}) {
        window.form.resize(size);
        QCoreApplication::processEvents();
        // The first key of all only shows where the focus is.
        for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Home}) {
            window.Key(key);
            const QPoint at = window.view.mapTo(&container, window.At(window.Focused()));
            EXPECT_TRUE(container.rect().contains(at)) << container.height() << " high, at " << at.x() << " " << at.y();
        }
    }
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

TEST(ScreenReader, HearsOfMarksOfMistakesAndOfTheEnd) {
    KeyWindow window({Record({"1.2.2", ".1...", "1....", ".1...", "....2"})});
    const auto name = [&](CellPlace cell) {
        return IslandName(window.game, window.board.puzzle.CellId(cell)).toStdString();
    };
    window.ClickIsland({1, 1});
    window.ClickIsland({1, 3}, Qt::RightButton);
    EXPECT_EQ(name({1, 1}), "row 1, column 1, needs 1, has 0, no bridge to row 1, column 3");
    EXPECT_EQ(name({1, 3}), "row 1, column 3, needs 2, has 0, no bridge to row 1, column 1");
    window.Click("cmdundo");
    window.ClickIslands({{1, 1}, {3, 1}, {2, 2}, {4, 2}, {1, 3}, {1, 5}, {1, 3}, {1, 5}, {1, 1}, {1, 3}});
    EXPECT_EQ(name({1, 3}), "row 1, column 3, needs 2, has 3") << "nobody wants to know";
    window.game.options.ShowOverfull = window.game.options.ShowClosedGroups = true;
    EXPECT_EQ(name({1, 3}), "row 1, column 3, needs 2, has 3, too many bridges, in a closed group");
    KeyWindow last({Record({"1.1"})});
    last.Key(Qt::Key_Home);
    last.Key(Qt::Key_Right, Qt::ControlModifier);
    IslandAnnouncer([&](QAccessibleInterface* island, QAccessible::Event) {
        EXPECT_EQ(island->text(QAccessible::Description).toStdString(), "Solved");
    }).AnnounceStatus(last.view);
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
