// SPDX-License-Identifier: MIT
// Moving through a collection and opening another one.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// The key code of Enter, as key-press handlers receive it.
inline constexpr int kEnterKey = 13;

/// The three arrow buttons: index 0 previous (right button: first), 1 random, 2 next (right button: last).
void arrows_Click(Game& game, int index, MouseButton button);

/// Enter in the number box loads the puzzle of that number; numbers out of range do nothing.
void PuzNumNow_KeyPress(Game& game, int key);

/// Asks which puzzle of the collection to open, by their pictures.
void mnuchoose_Click(Game& game);

/// Opens the collection at `path` at puzzle `number`. One of the older layout is named, and converted if the player
/// wants that; the converted copy is then opened. True when a puzzle was loaded.
bool OpenCollection(Game& game, const std::string& path, int number);

/// Opens the file that was chosen, or dropped on the window, at its first puzzle. A failed load before it is forgotten.
void OpenChosen(Game& game, const std::string& path);

/// The same at puzzle `number`.
void OpenChosenAt(Game& game, const std::string& path, int number);

/// Opens a collection of the recent files. One that is no longer there leaves the list.
void OpenRecent(Game& game, const std::string& path);

/// Asks for a collection file and loads its first puzzle.
void mnuloadpuz_Click(Game& game);
void cmdload_Click(Game& game);

}  // namespace tidewalk
