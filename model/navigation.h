// SPDX-License-Identifier: MIT
// Moving through a collection and opening another one.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// The key code of Enter, as key-press handlers receive it.
inline constexpr int kEnterKey = 13;

/// The three arrow buttons: index 0 previous (right button: first), 1 random, 2 next (right button: last).
void arrows_Click(Game& game, int index, MouseButton button);

/// Enter in the number box loads the puzzle of that number; numbers out of range do nothing.
void PuzNumNow_KeyPress(Game& game, int key);

/// Asks for a collection file and loads its first puzzle.
void mnuloadpuz_Click(Game& game);
void cmdload_Click(Game& game);

}  // namespace tidewalk
