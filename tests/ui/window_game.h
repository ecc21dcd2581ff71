// SPDX-License-Identifier: MIT
// The whole windowed program in a folder of its own, for tests that click.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <deque>

#include "support/board_text.h"
#include "support/temp_folder.h"
#include "ui/box_control.h"
#include "ui/program.h"

namespace tidewalk::test {

/// Looks again and again as soon as events are let through, also by a dialog or a job that a look has started: a timer
/// that repeats would wait for its own look to end.
struct Lookout : QObject {
    explicit Lookout(std::function<void()> doLook) : look(std::move(doLook)) { Again(); }
    void Again() {
        QTimer::singleShot(0, this, [this] { Again(), look(); });
    }
    std::function<void()> look;
};

/// The control of this object name in a window.
template <class Widget = QWidget>
Widget& Of(const QObject& window, const char* name) {
    auto* const found = window.findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

/// What controls of a window hold for their user, text, value or tick: of "Text1 Text2" such as "1 3".
std::string Get(const QObject& window, const QString& names);
/// Gives controls other contents: "Text1=1 Text2=3".
void Set(const QObject& window, const QString& contents);
/// Clicks the button of a window with this object name or caption.
void Press(const QObject& window, const char* button);

/// What is done in a dialog: a click on a button, or a name typed into a file dialog and accepted.
using Act = std::function<void(QDialog&)>;
Act Answer(const char* button);
Act Choose(const std::string& path);

/// What a test calls a dialog: the message of a box, "system: " and the message, "file: " and the title, or the object
/// name.
std::string NameOf(const QDialog& dialog);

/// How many pages a PDF file has.
qsizetype PagesOf(const char* path);

/// The program with a collection of these records open at its first puzzle.
struct WindowGame {
    explicit WindowGame(const std::vector<std::string>& records = {kSmallPuzzle});
    /// The test fails when something expected did not come up.
    ~WindowGame();

    /// The next dialog to come up, after those expected before, is this one; the test fails on any other. It is left by
    /// its frame if `act` leaves it open.
    void Expect(const std::string& name, Act act = {}) { expected.emplace_back(name, std::move(act)); }
    void Click(const char* button, Qt::MouseButton with = Qt::LeftButton) {
        QTest::mouseClick(&Of<BoxControl>(form, button), with);
    }
    void Trigger(const char* menuItem) { Of<QAction>(form, menuItem).trigger(); }

    /// Where the island of a cell lies on the board's widget, in pixels.
    QPoint At(CellPlace cell) const;
    /// The pointer moves, to any place at all; QTest moves the real one, which does not leave the screen.
    void MoveTo(QPoint onBoard, Qt::MouseButtons held = Qt::NoButton);
    /// Clicks islands at once, with no move before.
    void ClickIsland(CellPlace cell, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&view, button, modifiers, At(cell));
    }
    void ClickIslands(std::initializer_list<CellPlace> cells);
    int Bridges(CellPlace a, CellPlace b) const {
        return board.BridgeState(board.puzzle.CellId(a), board.puzzle.CellId(b));
    }
    /// The board with what is painted over it.
    QImage Shown() { return form.Container().grab(view.geometry()).toImage(); }

    TempFolder folder;
    Program program;
    Game& game = program.game();
    Board& board = game.board;
    Form1& form = program.form1();
    BoardView& view = form.Container().Board();
    bool ended = false;
    std::unique_ptr<Lookout> lookout = std::make_unique<Lookout>([this] { Look(); });

 private:
    void Look();

    std::deque<std::pair<std::string, Act>> expected;
    std::vector<QDialog*> inUse;
};

}  // namespace tidewalk::test
