// SPDX-License-Identifier: MIT
// Making a bare grid of numbers the current puzzle: from a file, or from the clipboard.
#pragma once

#include <string>

#include "game/game.h"
#include "model/plain_grid.h"

namespace tidewalk {

/// Makes grid `number` of the file at `path` the current puzzle and draws it: numbers only, no stored solution. True
/// when that was done. `CollectionPath` and `PuzzleNumber` keep naming the last collection and puzzle.
///
/// On failure it says why; the current puzzle is then as it was.
bool ReadGridFile(Game& game, const std::string& path, int number);

/// Says why reading a grid from `path` failed; true when it did not.
bool ReportGridResult(Game& game, GridResult result, const std::string& path, int number);

/// The menu's "Import": asks for a file and reads its first grid.
void mnuimport_Click(Game& game);

/// The menu's "Paste": reads the clipboard's text as a grid, by way of "tempin.txt" in the current directory.
void mnupastepuzzle_Click(Game& game);

}  // namespace tidewalk
