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

/// What is wrong with bridges that give every island its number, and a cell where that can be seen.
struct BoardFault {
    CellPlace cell;
    std::string text;  ///< "bridges cross"
};

/// Crossings, bridges over islands and separate groups on a board whose every island has its number; nothing on one
/// that is solved.
std::optional<BoardFault> FaultBeyondNumbers(const Board& board);

/// Compares every island's bridges with its number. Crossings and connections are not looked at.
BridgeCheck CheckBridgeCounts(const Board& board);

}  // namespace tidewalk
