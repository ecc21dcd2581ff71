// SPDX-License-Identifier: MIT
// The commands that change files: adding the current puzzle to one, deleting it from its own, exporting its bare grid,
// converting a collection of the older layout.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// "Add Puzzle to File": asks for a file, appends the puzzle to it and makes it the current collection.
void mnuappend_Click(Game& game);

/// Deletes the current puzzle from its collection and shows the one before it. When the line is no longer the one that
/// was loaded, it says so, loads the puzzle afresh and deletes nothing.
void mnudelete_Click(Game& game);

/// False while the board holds a puzzle that is in no collection.
bool CanDelete(const Game& game);

/// "Export Puzzle": asks for a file and writes the numbers alone, one line a row, "." for everything else.
void mnuexport_Click(Game& game);

/// The maintenance command: converts the current collection into a copy with a record a line.
void Command3_Click(Game& game);

}  // namespace tidewalk
