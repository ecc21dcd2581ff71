// SPDX-License-Identifier: MIT
// Plain grids: a line a row, a digit an island, "." or a blank for water.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/puzzle.h"

namespace tidewalk {

/// The numbers of the puzzle, one text a row, "." for everything else.
std::vector<std::string> PlainGrid(const Puzzle& puzzle);

/// The grid as the number editor's file holds it: "#RRCC" and the rows, each line with its end.
std::string MarkedGrid(const Puzzle& puzzle);

enum class GridResult { Read, NotFound, Failed };

/// Reads grid `number`, from 1, of the file at `path` into `puzzle`.
///
/// A file is either one plain grid, as wide as its first line and ended by an empty one, or a sequence of grids that
/// each begin with "#RRCC", their rows and columns in two digits each. A column is one character; what is missing in a
/// row and what is no digit is water. NotFound when the file has fewer grids, Failed when it cannot be read, is cut
/// short or holds a grid of another size than 1..25 either way; `puzzle` is then of no use.
GridResult ReadGridFrom(const std::string& path, int number, Puzzle& puzzle);

}  // namespace tidewalk
