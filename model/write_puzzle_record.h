// SPDX-License-Identifier: MIT
// Writing the current puzzle as a line of a collection.
#pragma once

#include <string>

#include "model/game.h"

namespace tidewalk {

/// The puzzle and its bridges as a record, without a line's end.
std::string PuzzleRecord(const Puzzle& puzzle);

/// Writes the current puzzle's record: with `append` 0 it becomes all that the file holds, otherwise it goes to the
/// end. Closes file 1 first and leaves it closed. Throws FileError when the record could not be written; a file that
/// was to be replaced is then as it was.
void WritePuzzleRecord(Game& game, const std::string& path, int append);

}  // namespace tidewalk
