// SPDX-License-Identifier: MIT
// The islands of a puzzle and the spans between them: what never changes while one looks for bridges.
#pragma once

#include <array>
#include <vector>

#include "model/puzzle.h"

namespace tidewalk {

/// The most bridges between two islands.
constexpr int kMostBridges = 2;

/// A pair of islands that see each other, so that bridges may lie between them.
struct Span {
    std::array<int, 2> ends{};   ///< indices of the islands, the upper or left one first
    std::vector<int> crossings;  ///< the spans that cannot be bridged when this one is

    int Other(int isle) const { return ends[0] == isle ? ends[1] : ends[0]; }
};

struct Isle {
    CellNumber id = 0;
    CellPlace place;
    int number = 0;
    std::vector<int> spans;  ///< at most four
};

/// The islands of a board, row by row, and the spans between them. Both are named by their indices, from 0.
struct Archipelago {
    Archipelago() = default;
    explicit Archipelago(const Puzzle& puzzle);

    int IsleCount() const { return static_cast<int>(isles.size()); }
    int SpanCount() const { return static_cast<int>(spans.size()); }
    const Isle& IsleAt(int isle) const { return isles[static_cast<std::size_t>(isle)]; }
    const Span& SpanAt(int span) const { return spans[static_cast<std::size_t>(span)]; }

    std::vector<Isle> isles;
    std::vector<Span> spans;
};

}  // namespace tidewalk
