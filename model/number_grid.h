// SPDX-License-Identifier: MIT
// The number editor without its window: a grid of island numbers with a cursor.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// The numbers that are being typed. Rows and columns are 1-based.
class NumberGrid {
 public:
    int Rows() const { return puzzle_.Rows; }
    int Cols() const { return puzzle_.Cols; }
    /// The number in a cell, 0 for water.
    int At(int row, int col) const { return puzzle_.IslandGrid(row, col); }
    const Puzzle& Numbers() const { return puzzle_; }
    CellPlace Cursor() const { return cursor_; }

    /// Makes the grid larger or smaller, 1..25 both ways. Numbers that lie outside now are gone.
    void Resize(int rows, int cols);
    /// Makes all cells water and goes to the first one.
    void Clear();

    /// Goes to the cell nearest to the place given.
    void MoveTo(int row, int col);
    void MoveBy(int rows, int cols) { MoveTo(cursor_.row + rows, cursor_.col + cols); }

    /// A key: "1" to "8" sets the number under the cursor, "0", "." or a blank makes it water; then the cursor goes on
    /// to the next cell in reading order. False, with nothing changed, for every other key.
    bool Type(char key);
    /// Goes back one cell in reading order and makes it water.
    void Backspace();
    /// Makes the cell under the cursor water.
    void Delete() { Set(0); }

    /// Takes the size and the numbers of a puzzle.
    void Take(const Puzzle& puzzle);

 private:
    void Set(int number) { puzzle_.SetIsland(puzzle_.CellId(cursor_), number); }

    Puzzle puzzle_{BoardSize{kMinSide, kMinSide}};
    CellPlace cursor_{1, 1};
};

/// Asks for a file, which of its grids where there are several, and takes that; nothing changes when that fails. True
/// when a grid was read.
bool LoadNumberGrid(Game& game, NumberGrid& grid);

/// Asks for a file and writes the grid to it. True when it was written.
bool SaveNumberGrid(Game& game, const NumberGrid& grid);

/// Hands the grid to the main window, through "tempeditpuzzle.txt" in the current directory. True when it is the
/// current puzzle now.
bool UseNumberGrid(Game& game, const NumberGrid& grid);

/// Starts the editor with the numbers of the current puzzle.
void EditCurrentPuzzle(const Game& game, NumberGrid& grid);

}  // namespace tidewalk
