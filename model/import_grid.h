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

/// Which of the grids of a file is meant, and what there is to be said of them.
struct GridWish {
    int number = 1;     ///< 0 when the player thinks better of it
    std::string words;  ///< "" for a file with one grid, which nobody was asked about
};

/// Asks which grid of the file at `path` is meant, unless the first is the only one that may be a puzzle. The player is
/// told that they are those of `name`. A file that cannot be read has a first grid, too: whoever reads that says why it
/// is none.
GridWish AskForGrid(Game& game, const std::string& path, const std::string& name);

/// The menu's "Import": asks for a file, which of its grids where there are several, and reads that.
void mnuimport_Click(Game& game);

/// The menu's "Paste": reads the clipboard's text as grids, by way of "tempin.txt" in the current directory.
void mnupastepuzzle_Click(Game& game);

/// "Copy Puzzle as Text": puts the numbers on the clipboard as a plain grid, which "Paste" takes.
void mnucopytext_Click(Game& game);

}  // namespace tidewalk
