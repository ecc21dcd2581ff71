// SPDX-License-Identifier: MIT
// The current puzzle: its board, its islands, its links and its place in a collection.
#pragma once

#include <string>

#include "model/grid.h"
#include "model/link_table.h"

namespace tidewalk {

/// Flags and routine results are compared with these; a routine that fails returns 1.
inline constexpr int YesValue = 1;
inline constexpr int NoValue = 0;

inline constexpr std::string_view AppTitle = "Tidewalk";

/// Where a cell lies, 1-based.
struct CellPlace {
    int row = 0;
    int col = 0;

    bool operator==(const CellPlace&) const = default;
};

/// The state that makes up the current puzzle.
struct Puzzle {
    int Rows = 0;       ///< 1..25; created puzzles have at least 7
    int Cols = 0;       ///< 1..25; created puzzles have at least 7
    int CellCount = 0;  ///< `Rows` times `Cols`
    int MaxDim = 0;     ///< the larger of `Rows` and `Cols`

    /// The number of an island, 0 (or, in the solver, -1) for water, -1 off the board within 1..25, 0 in the margin.
    /// While the solver works, what an island still needs.
    Grid<int> IslandGrid;
    Grid<int> GivenGrid;  ///< the numbers as read, in the same form; 0 or less is water
    Grid<int> CellId;     ///< the id of every board cell, 0 off the board
    PerCell<int> CellRow;
    PerCell<int> CellCol;

    LinkTable LinkList;
    int LinkCount() const { return LinkList.Count(); }

    int NumberTotal = 0;         ///< the sum of all island numbers of the loaded puzzle
    int PuzzleNumber = 0;        ///< 1-based line of the current puzzle in its collection; 0 before the first load
    int PuzzleCount = 0;         ///< lines of the current collection
    std::string CollectionPath;  ///< the current collection

    CellPlace PlaceOf(CellNumber id) const { return {CellRow[id], CellCol[id]}; }

    bool OnBoard(int row, int col) const { return row >= 1 && row <= Rows && col >= 1 && col <= Cols; }

    /// What `IslandGrid` holds at the cell `id`.
    int& IslandAt(CellNumber id) { return IslandGrid(CellRow[id], CellCol[id]); }
    int IslandAt(CellNumber id) const { return IslandGrid(CellRow[id], CellCol[id]); }
};

/// Numbers the cells of a `Rows` by `Cols` board row by row, with ids of 0 off the board, and sets `CellCount` and
/// `MaxDim`.
void NumberCells(Puzzle& puzzle);

}  // namespace tidewalk
