// SPDX-License-Identifier: MIT
// Growing a layout: one bridge at a time, each to an island that it brings along.
#pragma once

#include "model/cell_set.h"
#include "model/cell_words.h"
#include "model/grid.h"
#include "model/puzzle.h"
#include "model/random_source.h"

namespace tidewalk {

/// What `IslandGrid` holds while a layout grows.
inline constexpr int kOpenWater = -1;
inline constexpr int kPlacedIsland = 8;
inline constexpr int kBlockedWater = -9;  ///< beside an island, where no other may stand

/// A layout while it grows.
struct GrowingLayout {
    /// Nothing but water.
    explicit GrowingLayout(BoardSize size);

    int Rows;
    int Cols;
    Grid<int> IslandGrid;
    Grid<Cross> CrossGrid;        ///< `X` marks an island that can grow no further bridge
    Grid<int> BridgeTotals;       ///< the bridges grown at each island, which become its number
    CellNumber GrowFromCell = 0;  ///< the island from which the next bridge is grown; 0 when growth is over
    CellSet liveIslands;          ///< the islands from which a bridge may still be grown

    int CellCount() const { return Rows * Cols; }
    bool OnBoard(int row, int col) const { return row >= 1 && row <= Rows && col >= 1 && col <= Cols; }
    CellNumber CellId(int row, int col) const { return (row - 1) * Cols + col; }
    CellPlace PlaceOf(CellNumber id) const { return {(id - 1) / Cols + 1, (id - 1) % Cols + 1}; }
};

/// Puts an island on the cell `id`, blocks the water around it and lets bridges grow from it.
void PlaceIsland(GrowingLayout& layout, CellNumber id);

/// Grows one bridge from `GrowFromCell` and adds 1 to `count`; `count` becomes -1 when growth is over: no island can
/// grow another bridge, or the bridges are `fillTarget` percent of the board's cells.
void GrowStep(GrowingLayout& layout, RandomSource& random, int& count, float fillTarget);

/// The cell where a bridge from the island `cell` should end, or 0 when none can be grown: of all cells in reach the
/// one with the fewest islands on its diagonals, and of those one drawn at random.
CellNumber PickBridgeTarget(const GrowingLayout& layout, RandomSource& random, CellNumber cell);

/// How many of the four diagonal neighbours of `cell` are islands.
int CountDiagonalIslands(const GrowingLayout& layout, CellNumber cell);

/// Blocks the orthogonal neighbours of `cell` that lie on the board, whatever they hold.
void BlockNeighbours(GrowingLayout& layout, CellNumber cell);

/// The islands with the numbers that were grown. A border line without islands is pulled in by one line; where two
/// lines are empty, one stays so.
Puzzle GrownPuzzle(const GrowingLayout& layout);

}  // namespace tidewalk
