// SPDX-License-Identifier: MIT
// Keeping what is played, and bringing it back.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// Keeps the moves on the puzzle on the board, and the time spent on it, if the player wants that.
void KeepPlay(Game& game);

/// Keeps the time alone: what a window that only looks on has to keep.
void KeepTime(Game& game);

/// The window becomes active, or another one does: time counts only meanwhile, and only until the puzzle is solved.
void Form_Activate(Game& game, bool active);

/// The time spent, as "4:07" or "1:04:07".
std::string TimeText(int seconds);

/// Brings back what was kept of the puzzle that has just come onto the board, and says so in the status line; or
/// forgets it, if the board starts afresh. Moves
/// that cannot have been made on it are left out with all that follow.
void BringBackPlay(Game& game);

/// What the status line says of a puzzle that has come onto the board, and what is to be said of the play kept for it.
std::string AndPlayNote(const Game& game, const std::string& text);

/// Says in the status line what went wrong in keeping, if anything did since it was told last.
void TellTrouble(Game& game);

}  // namespace tidewalk
