// SPDX-License-Identifier: MIT
// What no solution can have: faults in the player's bridges that can be seen without knowing the solution.
#pragma once

#include <vector>

#include "board/bridge_table.h"
#include "model/puzzle.h"

namespace tidewalk {

/// Cells, each kind by ascending ids.
struct Mistakes {
    std::vector<CellNumber> overfull;   ///< islands with more bridges than their number
    std::vector<CellNumber> crossings;  ///< water over which bridges of two pairs run
    std::vector<CellNumber> runOver;    ///< islands over which bridges of other ones run
    std::vector<CellNumber> closed;     ///< the islands of finished groups while other islands remain
};

Mistakes FindMistakes(const Puzzle& puzzle, const BridgeTable& bridges);

/// Whether the bridges solve the puzzle: every island has its number, nothing runs over an island or crosses, and all
/// islands hang together. A board without islands is never solved.
bool IsSolved(const Puzzle& puzzle, const BridgeTable& bridges);

}  // namespace tidewalk
