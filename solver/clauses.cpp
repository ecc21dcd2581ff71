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
    std::vector<int> spreads;
    for (const Clause& clause : clauses_)
        spreads.push_back(clause.spread);
    const auto middle = spreads.begin() + static_cast<std::ptrdiff_t>(spreads.size() / 2);
    std::nth_element(spreads.begin(), middle, spreads.end());
    const int most = std::max(kForGood, *middle);
    std::erase_if(clauses_, [most](const Clause& clause) { return clause.spread > most; });
    for (std::vector<Watch>& watches : watches_)
        watches.clear();
    for (int index = 0; index < static_cast<int>(clauses_.size()); ++index)
        WatchFirstTwo(index);
}

}  // namespace tidewalk
