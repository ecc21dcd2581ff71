// SPDX-License-Identifier: MIT
#include "techniques/groups.h"

#include <algorithm>
#include <numeric>

namespace tidewalk {

namespace {

bool IsPassable(const Position& position, int span) {
    return position.Laid(span) > 0 || position.Room(span) > 0;
}

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
    ConnectionSearch search(position.Board(), [&](int span) { return IsPassable(position, span); });
    search.Run();
    for (int isle = 0; isle < position.Board().IsleCount() && unreached < 0; ++isle) {
        if (!search.IsReached(isle)) unreached = isle;
    }
    if (unreached >= 0) return;
    for (const CutSpan& cut : search.CutSpans()) {
        if (position.Laid(cut.span) == 0) cutSpans.push_back(cut.span);
    }
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
