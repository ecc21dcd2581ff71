// SPDX-License-Identifier: MIT
// Making a puzzle of a collection the current one.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// Makes line `number` of the collection at `path` the current puzzle and draws it. True when that was done.
///
/// On failure it says that the puzzle was not found. `CollectionPath`, `PuzzleNumber` and `PuzzleCount` then stay, and
/// the file is left open if it could be opened: until `CloseFiles` the next load fails too. When the line could not be
/// read the puzzle stays as it was; when its record is malformed the board is left partly reset.
bool LoadPuzzle(Game& game, const std::string& path, int number);

/// Loads a puzzle again after a job that worked on the board. When it is not there any more the board is left empty.
void ReloadPuzzle(Game& game, const std::string& path, int number);

/// Closes the file that a failed load has left open.
void CloseFiles(Game& game);

/// Closes that file and counts the puzzles of the collection at `path`; 0 when it cannot be read.
int CountPuzzles(Game& game, const std::string& path);

}  // namespace tidewalk
