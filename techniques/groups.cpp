// SPDX-License-Identifier: MIT
#include "techniques/groups.h"

#include <numeric>

namespace tidewalk {

namespace {

bool IsPassable(const Position& position, int span) {
    return position.Laid(span) > 0 || position.Room(span) > 0;
}

/// Numbers the islands depth first. A span is a cut when nothing behind it leads back before it.
class Explorer {
 public:
    explicit Explorer(const Position& position)
        : position_(position), order_(position.Board().isles.size(), 0), lowest_(position.Board().isles.size(), 0) {}

    void Explore(int isle, int cameBy) {
        const auto at = static_cast<std::size_t>(isle);
        order_[at] = lowest_[at] = ++visited_;
        for (const int span : position_.Board().IsleAt(isle).spans) {
            if (span == cameBy || !IsPassable(position_, span)) continue;
            const int other = position_.Board().SpanAt(span).Other(isle);
            const auto otherAt = static_cast<std::size_t>(other);
            if (order_[otherAt] == 0) {
                Explore(other, span);
                if (lowest_[otherAt] > order_[at] && position_.Laid(span) == 0) cutSpans.push_back(span);
                lowest_[at] = std::min(lowest_[at], lowest_[otherAt]);
            } else {
                lowest_[at] = std::min(lowest_[at], order_[otherAt]);
            }
        }
    }

    bool IsVisited(int isle) const { return order_[static_cast<std::size_t>(isle)] != 0; }

    std::vector<int> cutSpans;

 private:
    const Position& position_;
    std::vector<int> order_;   ///< when an island was visited, from 1; 0 for not yet
    std::vector<int> lowest_;  ///< the earliest visited island that can be reached from it without going back
    int visited_ = 0;
};

}  // namespace

Groups::Groups(const Position& position)
    : of_(position.Board().isles.size()), need_(of_.size(), 0), size_(of_.size(), 0) {
    std::iota(of_.begin(), of_.end(), 0);
    for (int span = 0; span < position.Board().SpanCount(); ++span) {
        if (position.Laid(span) == 0) continue;
        const auto& ends = position.Board().SpanAt(span).ends;
        of_[static_cast<std::size_t>(Root(ends[0]))] = Root(ends[1]);
    }
    for (int isle = 0; isle < position.Board().IsleCount(); ++isle) {
        const int root = Root(isle);
        of_[static_cast<std::size_t>(isle)] = root;
        need_[static_cast<std::size_t>(root)] += position.Need(isle);
        ++size_[static_cast<std::size_t>(root)];
    }
}

int Groups::Root(int isle) {
    int& of = of_[static_cast<std::size_t>(isle)];
    if (of != isle) of = Root(of);
    return of;
}

Connections::Connections(const Position& position) {
    Explorer explorer(position);
    explorer.Explore(0, -1);
    for (int isle = 0; isle < position.Board().IsleCount() && unreached < 0; ++isle) {
        if (!explorer.IsVisited(isle)) unreached = isle;
    }
    if (unreached < 0) cutSpans = std::move(explorer.cutSpans);
}

std::vector<int> ReachedWithout(const Position& position, int from, int barred) {
    std::vector<bool> seen(position.Board().isles.size(), false);
    std::vector<int> reached{from};
    seen[static_cast<std::size_t>(from)] = true;
    for (std::size_t next = 0; next < reached.size(); ++next) {
        const int isle = reached[next];
        for (const int span : position.Board().IsleAt(isle).spans) {
            const int other = position.Board().SpanAt(span).Other(isle);
            if (span == barred || seen[static_cast<std::size_t>(other)] || !IsPassable(position, span)) continue;
            seen[static_cast<std::size_t>(other)] = true;
            reached.push_back(other);
        }
    }
    return reached;
}

}  // namespace tidewalk
