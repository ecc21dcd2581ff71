// SPDX-License-Identifier: MIT
// Adding the current puzzle to a file, deleting it from its own, and exporting its bare grid.
#pragma once

#include <string>
#include <vector>

#include "model/game.h"

namespace tidewalk {

/// True when the file may be written: there is none, it is empty, or the player says so.
bool ConfirmOverwrite(Game& game, const std::string& name);

/// "Add Puzzle to File": asks for a file, appends the puzzle to it and makes it the current collection.
void mnuappend_Click(Game& game);

/// Deletes the current puzzle from its collection and shows the one before it.
void mnudelete_Click(Game& game);

/// "Export Puzzle": asks for a file and writes the numbers alone, one line a row, "." for everything else.
void mnuexport_Click(Game& game);

/// Copies the collection at `path` without line `number`: first to `workFile`, and from there over the
/// collection, which is replaced as a whole. Returns how many lines are left. Throws FileError when that fails; the
/// collection is then as it was.
int DeleteLine(Game& game, const std::string& path, int number, const std::string& workFile = "tidetemp.tmp");

/// The numbers of the puzzle, one text a row.
std::vector<std::string> PlainGrid(const Puzzle& puzzle);

}  // namespace tidewalk
