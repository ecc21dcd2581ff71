// SPDX-License-Identifier: MIT
#include "solver/bound_trail.h"

#include <algorithm>

namespace tidewalk {

BoundTrail::BoundTrail(int spanCount) : bounds_(static_cast<std::size_t>(spanCount)), facts_(VariableCount(spanCount)) {
    literals_.reserve(facts_.size());
}

void BoundTrail::Push(Literal literal, Reason reason) {
    facts_[literal.Variable()] = {Size(), Level(), reason};
    literals_.push_back(literal);
}

void BoundTrail::Assert(Literal literal, Reason reason) {
    const int span = literal.Span();
    const int bridges = literal.Bridges();
    Bounds& bounds = bounds_[static_cast<std::size_t>(span)];
    Push(literal, reason);
    const Reason weaker{Reason::Kind::Stronger, 0};
    if (literal.IsAtLeast()) {
        if (bridges == 2 && bounds.low == 0) Push(Literal::AtLeast(span, 1), weaker);
        bounds.low = static_cast<std::int8_t>(bridges);
    } else {
        if (bridges == 1 && bounds.high == 2) Push(Literal::Below(span, 2), weaker);
        bounds.high = static_cast<std::int8_t>(bridges - 1);
    }
}

int BoundTrail::LowAt(int span, int place) const {
    for (int low = Low(span); low > 0; --low) {
        if (PlaceOf(Literal::AtLeast(span, low)) < place) return low;
    }
    return 0;
}

int BoundTrail::HighAt(int span, int place) const {
    for (int high = High(span); high < kMostBridges; ++high) {
        if (PlaceOf(Literal::Below(span, high + 1)) < place) return high;
    }
    return kMostBridges;
}

void BoundTrail::BackTo(int level) {
    if (level >= Level()) return;
    const std::size_t size = levels_[static_cast<std::size_t>(level)];
    while (literals_.size() > size) {
        const Literal literal = literals_.back();
        literals_.pop_back();
        Bounds& bounds = bounds_[static_cast<std::size_t>(literal.Span())];
        if (literal.IsAtLeast()) {
            bounds.low = std::min(bounds.low, static_cast<std::int8_t>(literal.Bridges() - 1));
        } else {
            bounds.high = std::max(bounds.high, static_cast<std::int8_t>(literal.Bridges()));
        }
    }
    levels_.resize(static_cast<std::size_t>(level));
}

}  // namespace tidewalk
