// SPDX-License-Identifier: MIT
// A link between two islands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace tidewalk {

/// Two islands and what may still be laid between them.
struct Link {
    std::uint16_t first = 0;   ///< id of one end; the upper or left one in everything that the program makes
    std::uint16_t second = 0;  ///< id of the other end
    std::uint8_t state = 2;    ///< 2 no bridge yet, 1 one bridge laid, 0 a double bridge

    /// How many bridges it carries, 0..2.
    int Bridges() const { return 2 - state; }

    bool operator==(const Link&) const = default;
};

/// The link of the two cells in the given state.
inline Link MakeLink(CellNumber first, CellNumber second, int state) {
    return {static_cast<std::uint16_t>(first), static_cast<std::uint16_t>(second), static_cast<std::uint8_t>(state)};
}

/// The seven characters of a link record: both ids in three digits and the state, "0120151".
std::string Text(const Link& link);

/// Reads a link record; nothing when the text has another form or names a cell beyond 625.
std::optional<Link> ParseLink(std::string_view text);

}  // namespace tidewalk
