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

/// A short list without a place of its own on the heap: what there is one of to each side of an island at most.
class SideList {
 public:
    void push_back(int value) { values_[size_++] = value; }
    std::size_t size() const { return size_; }
    int operator[](std::size_t at) const { return values_[at]; }
    const int* begin() const { return values_.data(); }
    const int* end() const { return values_.data() + size_; }

 private:
    std::array<int, 4> values_{};
    std::size_t size_ = 0;
};

/// An island, the spans that end there, and the islands at their other ends in the same order.
struct Isle {
    CellNumber id = 0;
    CellPlace place;
    int number = 0;
    SideList spans;
    SideList seen;
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

/// A span that is all that joins what lies on its two sides.
struct CutSpan {
    int span = 0;
    int firstVisit = 0;  ///< when the search came to the first island beyond it, and to the last
    int lastVisit = 0;
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
    const std::vector<CutSpan>& CutSpans() const { return cutSpans_; }
    bool IsBeyond(const CutSpan& cut, int isle) const {
        const int visit = order_[static_cast<std::size_t>(isle)];
        return cut.firstVisit <= visit && visit <= cut.lastVisit;
    }

 private:
    /// Goes on from `isle`, to which the span `cameBy` led.
    void Explore(int isle, int cameBy) {
        const auto at = static_cast<std::size_t>(isle);
        order_[at] = lowest_[at] = ++visited_;
        const Isle& here = board_.IsleAt(isle);
        for (std::size_t side = 0; side < here.spans.size(); ++side) {
            const int span = here.spans[side];
            if (span == cameBy || !isPassable_(span)) continue;
            const int other = here.seen[side];
            const auto otherAt = static_cast<std::size_t>(other);
            if (order_[otherAt] == 0) {
                Explore(other, span);
                if (lowest_[otherAt] > order_[at]) cutSpans_.push_back({span, order_[otherAt], visited_});
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
    std::vector<CutSpan> cutSpans_;
    int visited_ = 0;
};

}  // namespace tidewalk
