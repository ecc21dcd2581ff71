// SPDX-License-Identifier: MIT
// Checking the player's bridges against the islands' numbers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "board/board.h"

namespace tidewalk {

/// What a check found.
struct BridgeCheck {
    /// The first island, row by row, whose bridges are not as many as its number; nothing when all are right.
    std::optional<CellPlace> wrong;
    std::vector<std::string> lines;  ///< what was counted, a line an island, up to the first wrong one
};

/// Compares every island's bridges with its number. Crossings and connections are not looked at.
BridgeCheck CheckBridgeCounts(const Board& board);

}  // namespace tidewalk
