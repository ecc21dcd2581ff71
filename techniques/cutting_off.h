// SPDX-License-Identifier: MIT
// All islands are one group in the end, so none may be cut off before.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "techniques/counting.h"
#include "techniques/groups.h"

namespace tidewalk {

/// One way to give an island its bridges: so many more on each of its spans.
using Way = std::array<int, 4>;

/// The ways to give an island all the bridges it needs, without those that complete a group while others remain.
struct Ways {
    Ways(const Position& position, const Groups& groups, int isle);

    Rooms rooms;
    bool none = false;            ///< every way completes a group, or there never was one
    Way least{};                  ///< the fewest further bridges on each span, over all ways left
    Way most{};                   ///< the most
    std::vector<Way> completing;  ///< the ways that were left out
};

/// An island that must not give its bridges in a way that cuts its group off: spans that must therefore be bridged,
/// or cannot be. With `doublesToo` also spans that take one bridge at most.
std::optional<Deduction> FindCutOff(const Position& position, const Groups& groups, int isle, bool doublesToo);

/// A span without which the board would fall apart: it takes at least one bridge.
std::optional<Deduction> FindWayOut(const Position& position);

}  // namespace tidewalk
