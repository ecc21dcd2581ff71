// SPDX-License-Identifier: MIT
// Reading one puzzle of a collection file: one record a line, "rows, columns, links;kind;grid".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/game.h"

namespace tidewalk {

/// Counts the lines of the file at `path`, the last one without an end too. Closes all numbered files first and leaves
/// them closed. A file that cannot be read counts 0.
int CountLines(Game& game, const std::string& path);

/// Makes line `number` of the collection at `path` the current puzzle and draws it. Returns 0.
///
/// On failure it says that the puzzle was not found and returns 1. `CollectionPath`, `PuzzleNumber` and `PuzzleCount`
/// then stay, and file 1 is left as it is, open if it could be opened: until somebody closes it, the next load fails
/// too. When the line could not be read the puzzle stays as it was; when its record is malformed the board is left
/// partly reset.
int LoadPuzzle(Game& game, const std::string& path, int number);

/// Far above the 700 characters of the largest record; a longer line is no record.
inline constexpr std::size_t kLongestRecord = 64 * 1024;

/// Reads the record, a line without its end, into `puzzle`, as `ReadPuzzle` does with a line of a file.
bool ReadPuzzleRecord(std::string_view record, Puzzle& puzzle);

/// Reads line `number` of the collection at `path` into `puzzle`, which belongs to no game: nothing is shown, drawn or
/// asked, and the current puzzle stays. Returns false when there is no such line or it is no record; `puzzle` is then
/// of no use. Closes all numbered files first and leaves them closed.
///
/// `PuzzleNumber`, `PuzzleCount` and `CollectionPath` of `puzzle` are not set.
bool ReadPuzzle(NumberedFiles& files, const std::string& path, int number, Puzzle& puzzle);

}  // namespace tidewalk
