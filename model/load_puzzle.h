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

/// A puzzle on the board, and where it belongs.
struct ShownPuzzle {
    Puzzle puzzle;
    Collection collection;
};
ShownPuzzle PuzzleShown(const Game& game);

/// Puts a puzzle that was on the board before back there, with nothing played: it is loaded again, or, if it is no
/// puzzle of a collection, taken as it was. One that is not there any more leaves the board empty.
void ShowAgain(Game& game, const ShownPuzzle& before);

/// Makes the puzzle the current one, of no collection: it was read from `from`, a grid's file. `CollectionPath` and
/// `PuzzleNumber` keep naming the last collection and puzzle.
void TakeImported(Game& game, const Puzzle& puzzle, const std::string& from);

/// Closes the file that a failed load has left open.
void CloseFiles(Game& game);

/// Closes that file and counts the puzzles of the collection at `path`; 0 when it cannot be read.
int CountPuzzles(Game& game, const std::string& path);

}  // namespace tidewalk
