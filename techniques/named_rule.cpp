// SPDX-License-Identifier: MIT
#include "techniques/named_rule.h"

namespace tidewalk {

namespace {

/// What the named rules ask about an island.
struct Case {
    int need = 0;
    int open = 0;    ///< spans with room
    int single = 0;  ///< of these, with room for one bridge alone
    int ones = 0;    ///< of these, to a neighbour that needs one bridge alone
    int half = 0;    ///< of these, with one bridge on them already
};

Case CaseOf(const Position& position, int isle, const Rooms& rooms) {
    Case c;
    c.need = rooms.need;
    for (int k = 0; k < rooms.count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        const int span = rooms.spans[at];
        if (rooms.on[at] == 0) continue;
        ++c.open;
        if (rooms.on[at] == 1) ++c.single;
        if (position.Need(position.Board().SpanAt(span).Other(isle)) == 1) ++c.ones;
        if (position.Laid(span) == 1) ++c.half;
    }
    return c;
}

}  // namespace

std::optional<Rule> RuleForLast(const Position& position, int isle, const Rooms& rooms) {
    const Case c = CaseOf(position, isle, rooms);
    if (c.need == 1 && c.open == 1) return Rule::OneToOnlyNeighbour;
    if (c.need == 2 && c.open == 1) return Rule::TwoToOnlyNeighbour;
    if (c.need == 4 && c.open == 2) return Rule::FourToTwoNeighbours;
    if (c.need == 6 && c.open == 3) return Rule::SixToThreeNeighbours;
    if (c.need == 3 && c.open == 2 && c.ones == 1) return Rule::TwoOfThree;
    if (c.need == 2 && c.open == 2 && c.half == 2) return Rule::TwoOverHalfUsedLinks;
    return std::nullopt;
}

std::optional<Rule> RuleForLeast(const Position& position, int isle, const Rooms& rooms) {
    const Case c = CaseOf(position, isle, rooms);
    // A single room is named only where the neighbour's own need makes it so.
    if (c.single != c.ones) return std::nullopt;
    if (c.need == 3 && c.open == 2) return Rule::FirstOfThreeToTwo;
    if (c.need == 5 && c.open == 3 && c.ones == 0) return Rule::FirstOfFive;
    if (c.need == 2 && c.open == 2 && c.ones == 1) return Rule::TwoBesideOne;
    if (c.need == 3 && c.open == 3 && c.ones == 2) return Rule::ThreeBesideTwoOnes;
    if (c.need == 4 && c.open == 3 && c.ones == 1) return Rule::FourBesideOne;
    return std::nullopt;
}

}  // namespace tidewalk
