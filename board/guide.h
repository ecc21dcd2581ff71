// SPDX-License-Identifier: MIT
// What a hint, or a step of an explanation, shows on the board.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "board/bridge_table.h"

namespace tidewalk {

/// What is to be seen between two islands.
enum class PairMark {
    Lay,   ///< bridges to lay there
    None,  ///< no further bridge goes there
    Wrong  ///< the bridges that lie there are in no solution
};

struct MarkedPair {
    CellNumber a = 0;
    CellNumber b = 0;
    int bridges = 0;  ///< with `Lay`: how many will lie there
    PairMark mark = PairMark::Lay;

    bool operator==(const MarkedPair&) const = default;
};

/// Frames and marks over the board, and perhaps other bridges than the player's. They show until the next move.
struct Guide {
    std::vector<CellNumber> islands;  ///< framed
    std::vector<MarkedPair> pairs;
    std::optional<BridgeTable> position;  ///< the bridges of an explained step, in the place of the player's

    std::uint64_t revision = 0;  ///< of the history for which it was made
};

}  // namespace tidewalk
