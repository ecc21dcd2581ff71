// SPDX-License-Identifier: MIT
// Plain grids: a line a row, a digit an island, "." for water.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/grid_reader.h"
#include "model/may_go_on.h"
#include "model/puzzle.h"

namespace tidewalk {

/// The numbers of the puzzle, one text a row, "." for everything else.
std::vector<std::string> PlainGrid(const Puzzle& puzzle);

/// The grid as the number editor's file holds it: "#RRCC" and the rows, each line with its end.
std::string MarkedGrid(const Puzzle& puzzle);

/// How a grid is written for others.
enum class GridForm {
    Plain,   ///< the rows
    Spaced,  ///< a blank between columns; a grid without water, whose blanks would be taken for some, is plain
    Sized    ///< a line "7x9" before the rows
};

/// The grid in this form, each line with its end. `GridReader` makes the same numbers of it.
std::string GridText(const Puzzle& puzzle, GridForm form);

enum class GridResult { Read, NotFound, Failed };

/// Reads grid `number`, from 1, of the file at `path` into `grid`: the forms are those of `GridReader`. What follows it
/// is not read.
///
/// NotFound when the file has fewer grids or `mayGoOn` says no before it is found, Failed when it cannot be read or no
/// board can hold the grid; `grid` is then as it was.
GridResult ReadGridFrom(const std::string& path, int number, FoundGrid& grid, const MayGoOn& mayGoOn = WithoutEnd);

}  // namespace tidewalk
