// SPDX-License-Identifier: MIT
// The islands of a puzzle and the spans between them: what never changes while one looks for bridges.
#pragma once

#include <algorithm>
#include <array>
#include <utility>
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

/// An island, and the spans that end there.
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

/// Which islands hang together over the spans that `IsPassable` lets through, and over which of these no circle runs.
template <class IsPassable>
class ConnectionSearch {
 public:
    ConnectionSearch(const Archipelago& board, IsPassable isPassable)
        : board_(board), isPassable_(std::move(isPassable)), order_(board.isles.size()), lowest_(board.isles.size()) {}

    /// Numbers all islands that the first one reaches, depth first. The board has one at least.
    void Run() {
        std::fill(order_.begin(), order_.end(), 0);
        visited_ = 0;
        cutSpans_.clear();
        Explore(0, -1);
    }

    bool IsReached(int isle) const { return order_[static_cast<std::size_t>(isle)] != 0; }
    bool ReachesAll() const { return visited_ == board_.IsleCount(); }
    /// The spans that are all that joins what lies on their two sides.
    const std::vector<int>& CutSpans() const { return cutSpans_; }

 private:
    /// Goes on from `isle`, to which the span `cameBy` led.
    void Explore(int isle, int cameBy) {
        const auto at = static_cast<std::size_t>(isle);
        order_[at] = lowest_[at] = ++visited_;
        for (const int span : board_.IsleAt(isle).spans) {
            if (span == cameBy || !isPassable_(span)) continue;
            const int other = board_.SpanAt(span).Other(isle);
            const auto otherAt = static_cast<std::size_t>(other);
            if (order_[otherAt] == 0) {
                Explore(other, span);
                if (lowest_[otherAt] > order_[at]) cutSpans_.push_back(span);
                lowest_[at] = std::min(lowest_[at], lowest_[otherAt]);
            } else {
                lowest_[at] = std::min(lowest_[at], order_[otherAt]);
            }
        }
    }

    const Archipelago& board_;
    IsPassable isPassable_;
    std::vector<int> order_;   ///< when an island was visited, from 1; 0 for not yet
    std::vector<int> lowest_;  ///< the earliest visited island that can be reached from it without going back
    std::vector<int> cutSpans_;
    int visited_ = 0;
};

}  // namespace tidewalk
