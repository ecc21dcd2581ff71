// SPDX-License-Identifier: MIT
// Growing a layout: one bridge at a time, each to an island that it brings along.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// What `IslandGrid` holds while a layout grows.
inline constexpr int kOpenWater = -1;
inline constexpr int kPlacedIsland = 8;
inline constexpr int kBlockedWater = -9;  ///< beside an island, where no other may stand

/// Puts an island on the cell `id`, blocks the water around it and lets bridges grow from it.
void PlaceIsland(Game& game, CellNumber id);

/// Grows one bridge from `GrowFromCell` and adds 1 to `count`; `count` becomes -1 when growth is over: no island can
/// grow another bridge, or the bridges are `fillTarget` percent of the board's cells.
void GrowStep(Game& game, int& count, float fillTarget);

/// The cell where a bridge from the island `cell` should end, or 0 when none can be grown: of all cells in reach the
/// one with the fewest islands on its diagonals, and of those one drawn at random.
CellNumber PickBridgeTarget(Game& game, CellNumber cell);

/// How many of the four diagonal neighbours of `cell` are islands.
int CountDiagonalIslands(const Game& game, CellNumber cell);

/// Blocks the orthogonal neighbours of `cell` that lie on the board, whatever they hold.
void BlockNeighbours(Game& game, CellNumber cell);

}  // namespace tidewalk
