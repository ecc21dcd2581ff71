// SPDX-License-Identifier: MIT
// Making a bare grid of numbers the current puzzle: from a file, or from the clipboard.
#pragma once

#include <string>

#include "model/game.h"
#include "model/grid_text.h"

namespace tidewalk {

/// Makes grid `number` of the file at `path` the current puzzle and draws it: numbers only, no stored solution. Returns
/// 0. `CollectionPath` and `PuzzleNumber` keep naming the last collection and puzzle.
///
/// On failure it says why and returns 1; the current puzzle is then as it was.
int ReadGridFile(Game& game, const std::string& path, int number);

/// Shows what became of reading a grid from `path`; returns 0 for a grid that was read, otherwise 1.
int ReportGridResult(Game& game, GridResult result, const std::string& path, int number);

/// The menu's "Import": asks for a file and reads its first grid.
void mnuimport_Click(Game& game);

/// The menu's "Paste": reads the clipboard's text as a grid, by way of "tempin.txt" in the current directory.
void mnupastepuzzle_Click(Game& game);

}  // namespace tidewalk
