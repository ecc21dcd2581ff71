// SPDX-License-Identifier: MIT
// Somebody who does anything at any moment to the whole program, the same things again for the same seed.
#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QFileDialog>
#include <deque>
#include <memory>
#include <random>

#include "window_game.h"

namespace tidewalk::test {

/// Fires commands, clicks, keys, texts, wheel turns, new sizes and closes at the main window, and answers whatever
/// dialog comes up by chance. Jobs are interfered with while they run.
class Monkey {
 public:
    explicit Monkey(unsigned seed);

    /// Does one more thing and lets it come to its end. False once something was found wrong; the test has failed then.
    bool Step();

    /// How often something was done while a job ran, how often a dialog was answered, and how often the program ended.
    int interferences = 0;
    int answers = 0;
    int ends = 0;

 private:
    int Draw(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Draw(static_cast<int>(list.size())))];
    }
    void Note(const std::string& what);

    void StartProgram();
    void LookAgain();
    void Look();
    void ActByChance();
    void GiveCommand();
    void ClickBoard();
    void PressKey(QWidget* target);
    void TypeIntoBox();
    void TurnWheel();
    void Resize();
    void Interfere();
    void Answer(QDialog& dialog);
    void AnswerFileDialog(QFileDialog& dialog);
    void UseControl(QDialog& dialog);
    bool IsQuiet();
    bool Check();

    unsigned seed_;
    std::mt19937 random_;
    std::unique_ptr<WindowGame> window_;
    QObject context_;  ///< looks end with the object
    std::deque<std::string> log_;
    int looksAtJob_ = 0;
    int looksAtDialogs_ = 0;
    int depth_ = 0;
};

}  // namespace tidewalk::test
