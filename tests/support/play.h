// SPDX-License-Identifier: MIT
// A game on one puzzle that a test plays in a line of text.
#pragma once

#include <string>

#include "support/test_game.h"

namespace tidewalk::test {

/// Islands in the corners of a board, 1, 7, 43 and 49, and one in the middle of its upper side, 4.
inline const Lines kCorners{"2..3..2", ".......", ".......", ".......", ".......", ".......", "2.....2"};

/// A game on one puzzle, played as a window would.
struct Play : TestGame {
    explicit Play(const std::string& record) : TestGame({record}) { Load(1); }
    explicit Play(const Lines& rows = kCorners) : Play(Record(rows)) {}

    void Press(CellNumber id, MouseButton button, bool shift);

    /// Draws from an island to a point, and goes on holding the button.
    void Draw(CellNumber from, Point to);
    void Drag(CellNumber from, Point to);

    /// Plays moves. With the mouse: "1" clicks that cell, "1-4" both; "=" stands for a click with Shift, "x" for the
    /// right button and "X" for both. With keys: ":" and a letter each for left, right, up, down, first, end, previous
    /// and next, "." to lay, "=" to lay two and "x" to remove. "1>4" draws from one to the other. "u" is for
    /// undo, "r" for redo, "c" for a checkpoint and "b" for going back to one.
    Play& operator<<(const std::string& moves);

    /// The bridges, the island with the focus, the selected one and the moves: "1-4*2 #4 @1; 1, 4, 0".
    std::string State() const;
};

}  // namespace tidewalk::test
