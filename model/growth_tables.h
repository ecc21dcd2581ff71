// SPDX-License-Identifier: MIT
// What the generator keeps of the layout that it grows.
#pragma once

#include "model/cell_set.h"
#include "model/grid.h"

namespace tidewalk {

struct GrowthTables {
    Grid<int> BridgeTotals;       ///< the bridges grown at each island, which become its number
    CellNumber GrowFromCell = 0;  ///< the island from which the next bridge is grown; 0 when growth is over
    CellSet liveIslands;          ///< the islands from which a bridge may still be grown
};

}  // namespace tidewalk
