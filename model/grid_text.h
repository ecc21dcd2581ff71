// SPDX-License-Identifier: MIT
// Plain grids in text files: a digit an island, "." or a blank for water.
#pragma once

#include <string>
#include <vector>

#include "model/numbered_files.h"

namespace tidewalk {

/// The numbers of a grid, row by row; a row may be shorter than the grid is wide.
struct GridText {
    int rows = 0;
    int cols = 0;
    std::vector<std::string> lines;

    /// The number at (row, col), 1-based: 0 for water, and for whatever is missing or no digit.
    int At(int row, int col) const;
};

enum class GridResult { Read, NotFound, Failed };

/// Reads grid `number` of the file at `path`, through file 1, which is closed before and after.
///
/// A file is either one plain grid, as wide as its first line and ended by an empty one, or a sequence of grids that
/// each begin with "#RRCC", their rows and columns in two digits each. NotFound when the file has fewer grids, Failed
/// when it cannot be read, is cut short or holds a grid of another size than 1..25 either way.
GridResult ReadGridText(NumberedFiles& files, const std::string& path, int number, GridText& grid);

}  // namespace tidewalk
