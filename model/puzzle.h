// SPDX-License-Identifier: MIT
// A puzzle as a value: its size, the numbers of its islands and the bridges that are stored with it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "model/grid.h"
#include "model/link.h"

namespace tidewalk {

/// A puzzle that belongs to nobody: cheap to copy, and equal to another one that holds the same.
///
/// Cells have ids that run row by row from 1 at the upper left corner.
class Puzzle {
 public:
    /// No puzzle: a board without cells.
    Puzzle() = default;
    /// A board of nothing but water, 1..25 cells either way.
    explicit Puzzle(BoardSize size) : Rows(size.rows), Cols(size.cols) {}

    int Rows = 0;
    int Cols = 0;

    /// The stored bridges, a link each; of a puzzle that the solver solved, every candidate link.
    std::vector<Link> LinkList;

    BoardSize Size() const { return {Rows, Cols}; }
    int CellCount() const { return Rows * Cols; }
    int MaxDim() const { return std::max(Rows, Cols); }
    int LinkCount() const { return static_cast<int>(LinkList.size()); }
    /// The sum of all numbers, twice the bridges of a solution.
    int NumberTotal() const;
    int IslandCount() const;

    bool OnBoard(int row, int col) const { return row >= 1 && row <= Rows && col >= 1 && col <= Cols; }
    /// The id of a cell on the board.
    CellNumber CellId(int row, int col) const { return (row - 1) * Cols + col; }
    CellNumber CellId(CellPlace place) const { return CellId(place.row, place.col); }
    int CellRow(CellNumber id) const { return (id - 1) / Cols + 1; }
    int CellCol(CellNumber id) const { return (id - 1) % Cols + 1; }
    CellPlace PlaceOf(CellNumber id) const { return {CellRow(id), CellCol(id)}; }

    /// The number of the island on a cell of the board, 1..9 (no puzzle with a 9 has a solution), or 0 for water.
    int IslandAt(CellNumber id) const { return numbers_[id]; }
    /// The same by row and column, which may lie anywhere; 0 off the board.
    int IslandGrid(int row, int col) const { return OnBoard(row, col) ? numbers_[CellId(row, col)] : 0; }
    void SetIsland(CellNumber id, int number) { numbers_[id] = static_cast<std::uint8_t>(number); }

    bool operator==(const Puzzle&) const = default;

 private:
    PerCell<std::uint8_t> numbers_;
};

/// "7x12": the rows, then the columns.
std::string SizeText(BoardSize size);

/// A puzzle with the same islands and no links.
Puzzle WithoutLinks(const Puzzle& puzzle);

}  // namespace tidewalk
