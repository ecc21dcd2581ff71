// SPDX-License-Identifier: MIT
// Islands that hang together: joined by bridges, or within reach of each other.
#pragma once

#include <vector>

#include "techniques/position.h"

namespace tidewalk {

/// The groups of islands that the bridges of a position join, as they were when this was made.
class Groups {
 public:
    explicit Groups(const Position& position);

    /// The group of an island, named by one of its members.
    int Of(int isle) const { return of_[static_cast<std::size_t>(isle)]; }
    /// What all its islands still need together.
    int Need(int group) const { return need_[static_cast<std::size_t>(group)]; }
    int Size(int group) const { return size_[static_cast<std::size_t>(group)]; }

 private:
    int Root(int isle);

    std::vector<int> of_;
    std::vector<int> need_;
    std::vector<int> size_;
};

/// The spans that are all that joins two parts of the board, over bridges that lie and spans that have room.
struct Connections {
    /// The board has an island at least.
    explicit Connections(const Position& position);

    /// An island that the first one cannot reach, or -1 when all hang together.
    int unreached = -1;
    /// By index; only spans without a bridge. Empty when the board has fallen apart.
    std::vector<int> cutSpans;
};

/// The islands that `from` reaches over bridges and spans with room, without the span `barred`; `from` itself first.
std::vector<int> ReachedWithout(const Position& position, int from, int barred);

}  // namespace tidewalk
