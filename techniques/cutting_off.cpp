// SPDX-License-Identifier: MIT
#include "techniques/cutting_off.h"

#include <algorithm>

namespace tidewalk {

namespace {

/// Goes through all ways to spread an island's need over its spans.
class WayFinder {
 public:
    WayFinder(const Position& position, const Groups& groups, int isle, Ways& ways)
        : position_(position), groups_(groups), isle_(isle), ways_(ways) {}

    void Find() {
        ways_.none = true;
        ways_.least.fill(kMostBridges);
        ways_.most.fill(0);
        Spread(0, ways_.rooms.need);
    }

 private:
    /// Spreads what is left over the spans from index `at` on; where there is no span there is no room.
    void Spread(std::size_t at, int left) {
        if (at == way_.size()) {
            if (left == 0) Take();
            return;
        }
        for (int n = std::min(left, ways_.rooms.on[at]); n >= 0; --n) {
            way_[at] = n;
            Spread(at + 1, left - n);
        }
    }

    void Take() {
        if (CompletesAGroup()) {
            ways_.completing.push_back(way_);
            return;
        }
        ways_.none = false;
        for (std::size_t at = 0; at < way_.size(); ++at) {
            ways_.least[at] = std::min(ways_.least[at], way_[at]);
            ways_.most[at] = std::max(ways_.most[at], way_[at]);
        }
    }

    /// Whether nobody in the groups that the way joins needs anything after it, while there are islands elsewhere.
    bool CompletesAGroup() const {
        std::array<int, 5> joined{groups_.Of(isle_)};
        std::size_t count = 1;
        int need = groups_.Need(joined[0]);
        int size = groups_.Size(joined[0]);
        for (std::size_t at = 0; at < way_.size(); ++at) {
            if (way_[at] == 0) continue;
            const int group = groups_.Of(position_.Board().SpanAt(ways_.rooms.spans[at]).Other(isle_));
            if (std::find(joined.begin(), joined.begin() + count, group) != joined.begin() + count) continue;
            joined[count++] = group;
            need += groups_.Need(group);
            size += groups_.Size(group);
        }
        // Each bridge takes one from its island and one from a neighbour.
        return need == 2 * ways_.rooms.need && size < position_.Board().IsleCount();
    }

    const Position& position_;
    const Groups& groups_;
    int isle_;
    Ways& ways_;
    Way way_{};
};

/// Adds the neighbours with room.
void AddIslesOf(const Position& position, int isle, const Ways& ways, Deduction& deduction) {
    for (int k = 0; k < ways.rooms.count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        if (ways.rooms.on[at] > 0) deduction.isles.push_back(position.Board().SpanAt(ways.rooms.spans[at]).Other(isle));
    }
}

}  // namespace

Ways::Ways(const Position& position, const Groups& groups, int isle) : rooms(position, isle) {
    WayFinder(position, groups, isle, *this).Find();
}

std::optional<Deduction> FindCutOff(const Position& position, const Groups& groups, int isle, bool doublesToo) {
    const int need = position.Need(isle);
    // Islands of its own group that need more than its bridges can bring keep the group open.
    if (need < 1 || groups.Need(groups.Of(isle)) > 2 * need) return std::nullopt;
    const Ways ways(position, groups, isle);
    if (ways.none || ways.completing.empty()) return std::nullopt;
    Deduction deduction;
    deduction.technique = Technique::CutOff;
    for (int k = 0; k < ways.rooms.count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        const int span = ways.rooms.spans[at];
        if (ways.least[at] > std::max(0, ways.rooms.LeastOn(k))) {
            deduction.must.push_back({span, position.Laid(span) + ways.least[at]});
        } else if (ways.most[at] < ways.rooms.on[at] && (ways.most[at] == 0 || doublesToo)) {
            deduction.cannot.push_back({span, position.Laid(span) + ways.most[at]});
        }
    }
    if (deduction.must.empty() && deduction.cannot.empty()) return std::nullopt;
    deduction.isles.push_back(isle);
    AddIslesOf(position, isle, ways, deduction);
    return deduction;
}

std::optional<Deduction> FindWayOut(const Position& position) {
    const Archipelago& board = position.Board();
    std::vector<int> smallest;
    int way = -1;
    for (const int span : Connections(position).cutSpans) {
        for (const int end : board.SpanAt(span).ends) {
            std::vector<int> side = ReachedWithout(position, end, span);
            if (way >= 0 && side.size() >= smallest.size()) continue;
            smallest = std::move(side);
            way = span;
        }
    }
    if (way < 0) return std::nullopt;
    Deduction deduction;
    deduction.technique = Technique::WayOut;
    deduction.isles = std::move(smallest);
    deduction.isles.insert(deduction.isles.begin() + 1, board.SpanAt(way).Other(deduction.isles.front()));
    deduction.must.push_back({way, 1});
    return deduction;
}

}  // namespace tidewalk
