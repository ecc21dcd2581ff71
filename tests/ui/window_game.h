// SPDX-License-Identifier: MIT
// The whole windowed program in a folder of its own, for tests that click.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <string>
#include <vector>

#include "support/test_game.h"
#include "ui/box_control.h"
#include "ui/msg_form.h"
#include "ui/program.h"

namespace tidewalk::test {

/// The program with a collection of these records open at its first puzzle.
class WindowGame {
 public:
    explicit WindowGame(const std::vector<std::string>& records = {kSmallPuzzle});
    ~WindowGame();

    Game& game() { return program->game(); }
    Form1& form() { return program->form1(); }
    BoardView& board() { return form().Container().Board(); }

    /// The control of this object name; the test fails when there is none.
    template <class Widget>
    Widget& Find(const char* name) {
        auto* const found = form().findChild<Widget*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    BoxControl& Button(const char* name) { return Find<BoxControl>(name); }
    void ClickButton(const char* name, Qt::MouseButton button = Qt::LeftButton);

    /// Where the island of a cell lies on the board's widget, in pixels.
    QPoint IslandAt(int row, int col);
    void MoveTo(QPoint onBoard, Qt::MouseButtons held = Qt::NoButton);
    /// Moves to an island and clicks it.
    void ClickIsland(int row, int col, Qt::MouseButton button = Qt::LeftButton,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    int Bridges(int row1, int col1, int row2, int col2);
    /// The board's widget as it looks.
    QColor ColourAt(QPoint onBoard);

    TempFolder folder;
    std::unique_ptr<Program> program;
    bool ended = false;
};

/// Presses a button of the next message box, once it shows, and remembers what the box said. A box that nobody answers
/// is closed by its frame after a second and the test fails.
class BoxAnswer {
 public:
    /// `press` is the caption of the button, "" for the frame.
    explicit BoxAnswer(std::string text, QString press);
    ~BoxAnswer();

    bool Asked() const { return asked_; }

 private:
    void Look();

    std::string text_;
    QString press_;
    bool asked_ = false;
    int looks_ = 0;
    QTimer timer_;
};

}  // namespace tidewalk::test
