// SPDX-License-Identifier: MIT
#include "solver/clauses.h"

#include <algorithm>
#include <utility>

namespace tidewalk {

int Clauses::Add(LiteralList literals, int spread) {
    if (watches_.empty()) watches_.resize(LiteralCount(spanCount_));
    const int index = static_cast<int>(clauses_.size());
    clauses_.push_back({std::move(literals), spread});
    WatchFirstTwo(index);
    return index;
}

void Clauses::WatchFirstTwo(int index) {
    const LiteralList& literals = At(index);
    WatchesOf(literals[0]).push_back({index, literals[1]});
    WatchesOf(literals[1]).push_back({index, literals[0]});
}

int Clauses::Propagate(Literal literal, BoundTrail& trail) {
    if (watches_.empty()) return -1;
    std::vector<Watch>& watches = WatchesOf(literal);
    int conflict = -1;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < watches.size(); ++i) {
        const Watch watch = watches[i];
        if (conflict >= 0 || trail.IsTrue(watch.other)) {
            watches[kept++] = watch;
            continue;
        }
        LiteralList& literals = clauses_[static_cast<std::size_t>(watch.clause)].literals;
        if (literals[0] == literal) std::swap(literals[0], literals[1]);
        const auto next = std::find_if(literals.begin() + 2, literals.end(),
                                       [&trail](Literal candidate) { return !trail.IsFalse(candidate); });
        if (!trail.IsTrue(literals[0]) && next != literals.end()) {
            std::swap(literals[1], *next);
            WatchesOf(literals[1]).push_back({watch.clause, literals[0]});
            continue;
        }
        watches[kept++] = {watch.clause, literals[0]};
        if (trail.IsFalse(literals[0])) {
            conflict = watch.clause;
        } else if (!trail.IsTrue(literals[0])) {
            trail.Assert(literals[0], {Reason::Kind::Clause, watch.clause});
        }
    }
    watches.erase(watches.begin() + static_cast<std::ptrdiff_t>(kept), watches.end());
    return conflict;
}

void Clauses::DropWorst() {
    constexpr int kMoreEachTime = 500;
    most_ += kMoreEachTime;
    // The newest of those that are spread alike are the most likely to be of use again.
    std::reverse(clauses_.begin(), clauses_.end());
    std::stable_sort(clauses_.begin(), clauses_.end(),
                     [](const Clause& a, const Clause& b) { return a.spread < b.spread; });
    const auto droppable =
        std::find_if(clauses_.begin(), clauses_.end(), [](const Clause& clause) { return clause.spread > kForGood; });
    clauses_.erase(droppable + (clauses_.end() - droppable) / 2, clauses_.end());
    for (std::vector<Watch>& watches : watches_)
        watches.clear();
    for (int index = 0; index < static_cast<int>(clauses_.size()); ++index)
        WatchFirstTwo(index);
}

}  // namespace tidewalk
