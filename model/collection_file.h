// SPDX-License-Identifier: MIT
// Collections: files of puzzle records, one a line, so that the number of a puzzle is that of its line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/puzzle.h"

namespace tidewalk {

/// How many lines the file has, the last one without an end too. A file that cannot be read has none.
int CountLines(const std::string& path);

/// Reads line `number` of the file into `line`; false when there is no such line. Throws FileError when the file cannot
/// be read.
bool ReadCollectionLine(const std::string& path, int number, std::string& line);

/// The puzzle of line `number`; nothing when there is no such line, it is no record or the file cannot be read.
std::optional<Puzzle> ReadPuzzle(const std::string& path, int number);

/// Adds the record as the last line of the file, which is made when there is none. Throws FileError when the record
/// could not be written.
void AppendRecord(const std::string& path, std::string_view record);

enum class WriteMode { Replace, Append };

/// Makes the puzzle's record all that the file holds, or adds it as the last line. Throws FileError when the record
/// could not be written; a file that was to be replaced is then as it was.
void WritePuzzleRecord(const std::string& path, const Puzzle& puzzle, WriteMode mode);

/// Copies the collection without line `number`: first to `workFile`, and from there over the collection, which is
/// replaced as a whole. Returns how many lines are left. Throws FileError when that fails; the collection is then as it
/// was.
int DeleteLine(const std::string& path, int number, const std::string& workFile);

}  // namespace tidewalk
