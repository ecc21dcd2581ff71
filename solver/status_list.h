// SPDX-License-Identifier: MIT
// The island status list: which island to try next, and which moves it has.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "model/game.h"

namespace tidewalk {

/// A number of bridges to one neighbour.
struct Move {
    CellNumber neighbour = 0;
    int bridges = 0;
};

/// An island that still needs bridges and the moves that are left to try with it. Its text is the remaining need in one
/// digit, the number of open neighbours in two, two fields of "000", the island's id, and the moves as "012*1 ".
struct StatusLine {
    int need = 0;
    int neighbours = 0;
    CellNumber island = 0;
    std::array<Move, 8> moves{};
    int firstMove = 0;  ///< the moves before it were taken already
    int moveCount = 0;

    bool HasMoves() const { return firstMove < moveCount; }
    Move TakeMove() { return moves[static_cast<std::size_t>(firstMove++)]; }
};

std::string Text(const StatusLine& line);

/// The line that comes first in text order: of the islands with the smallest need the one with the fewest open
/// neighbours, of these the one with the smallest id. Nothing when no island needs bridges.
std::optional<StatusLine> FirstStatusLine(const Game& game);

/// Fills `List1` with a line for each island that needs bridges.
void ShowStatusList(Game& game);

}  // namespace tidewalk
