// SPDX-License-Identifier: MIT
#include "model/puzzle.h"

#include <algorithm>

namespace tidewalk {

void NumberCells(Puzzle& puzzle) {
    puzzle.CellCount = puzzle.Rows * puzzle.Cols;
    puzzle.MaxDim = std::max(puzzle.Rows, puzzle.Cols);
    puzzle.CellId.Fill(0);
    CellNumber id = 0;
    for (int row = 1; row <= puzzle.Rows; ++row) {
        for (int col = 1; col <= puzzle.Cols; ++col) {
            ++id;
            puzzle.CellId(row, col) = id;
            puzzle.CellRow[id] = row;
            puzzle.CellCol[id] = col;
        }
    }
}

}  // namespace tidewalk
