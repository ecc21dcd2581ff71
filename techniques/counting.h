// SPDX-License-Identifier: MIT
// Counting at one island: what its neighbours can take, and what they therefore must.
#pragma once

#include <array>
#include <optional>

#include "techniques/deduction.h"

namespace tidewalk {

/// An island's need beside the room on each of its spans.
struct Rooms {
    Rooms(const Position& position, int isle);

    int need = 0;
    int total = 0;               ///< the room on all spans together
    std::array<int, 4> on{};     ///< by the island's own order of spans
    std::array<int, 4> spans{};  ///< the same spans
    int count = 0;               ///< how many spans there are

    /// How many further bridges the span at index `k` must take because the others cannot; 0 or less for none.
    int LeastOn(int k) const { return need - (total - on[static_cast<std::size_t>(k)]); }
};

/// An island whose need is all that its neighbours can take: every bridge there is room for is laid.
std::optional<Deduction> FindLast(const Position& position, int isle);

/// An island with a neighbour without which the others can take too little: the rest goes there.
std::optional<Deduction> FindLeast(const Position& position, int isle);

/// A finished island, or a bridge that lies on a span: the open spans that it leaves without a further bridge. `isle`
/// is the island, or the upper or left end of the bridge.
std::optional<Deduction> FindNoMore(const Position& position, int isle);

}  // namespace tidewalk
