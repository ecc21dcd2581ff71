// SPDX-License-Identifier: MIT
// The tables that the solver and the generator work on.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/cell_set.h"
#include "model/cell_words.h"
#include "model/grid.h"

namespace tidewalk {

/// What never changes between two calls of `BuildNeighbourLists`: who sees whom on the empty board, and over which
/// links.
struct Sights {
    static constexpr int kDirections = 4;  ///< lower column, higher column, lower row, higher row

    struct Sight {
        std::uint16_t island = 0;  ///< the island seen, or 0
        std::uint16_t link = 0;    ///< its first entry in the link list
    };

    PerCell<std::array<Sight, kDirections>> from;  ///< by island
    PerCell<std::uint16_t> acrossRow;              ///< by water cell: the link between its left and right islands, or 0
    PerCell<std::uint16_t> acrossColumn;  ///< by water cell: the link between its upper and lower islands, or 0
    CellSet islands;
    int islandCount = 0;
};

/// What one call of `ConnectIslands` changed, kept so that the trial search can take it back.
struct LaidBridges {
    std::uint16_t a = 0;
    std::uint16_t b = 0;
    std::uint16_t link = 0;      ///< the entry used, or 0
    std::uint8_t count = 0;      ///< 1 or 2
    std::uint8_t linkState = 0;  ///< the entry's state before
    bool joined = false;         ///< the islands were not joined before
    bool crossed = false;        ///< the cells between them were free before
};

struct SolverTables {
    Grid<NeighbourList> OpenNeighbours;  ///< by island: whom it can still be bridged to, as of the last refresh
    Grid<Cross> CrossGrid;
    PerCell<JoinedList> ConnectedList;
    int BridgesLaid = 0;   ///< bridges laid since the solve began; a double bridge counts 2
    int ConnectCount = 0;  ///< calls of `ConnectIslands` since the driver last set it to 0
    int BranchCount = 0;   ///< choice points of the trial search that are open

    /// The search fails when it has come to so many trials; 0 for no bound.
    int TrialLimit = 0;

    // What follows spares the solver the rescan of the whole board after every bridge.

    Sights sights;
    CellSet staleLists;      ///< islands whose open list the next refresh has to make anew
    CellSet awaitingRules;   ///< islands about which something changed since the rules last looked at them
    CellSet awaitingCheck;   ///< islands about which something changed since the last check for contradictions
    int overdrawnLinks = 0;  ///< how often a link was asked for more than it could take
    std::vector<LaidBridges> laid;
};

}  // namespace tidewalk
