// SPDX-License-Identifier: MIT
// Sets of literals of which at least one is true: what a search learns from its dead ends.
#pragma once

#include <cstdint>
#include <vector>

#include "solver/bound_trail.h"

namespace tidewalk {

using LiteralList = std::vector<Literal>;

/// Each clause watches two of its literals, the first two, and is looked at only when one of these becomes false
/// (Moskewicz, Madigan, Zhao, Zhang and Malik, "Chaff: Engineering an efficient SAT solver", 2001).
class Clauses {
 public:
    /// `spread`: on how many levels the literals lay when it was learned (Audemard and Simon, "Predicting learnt
    /// clauses quality in modern SAT solvers", 2009). One with a spread of `kForGood` or less is never dropped.
    struct Clause {
        LiteralList literals;
        int spread = 0;
    };
    static constexpr int kForGood = 2;

    explicit Clauses(int spanCount) : spanCount_(spanCount) {}

    /// Takes a clause of two literals at least. Returns its index.
    int Add(LiteralList literals, int spread);

    const LiteralList& At(int index) const { return clauses_[static_cast<std::size_t>(index)].literals; }

    /// Asserts on the trail what follows from the clauses since `literal` is false. The index of a clause without a
    /// literal that can be true, or -1.
    int Propagate(Literal literal, BoundTrail& trail);

    /// True when there are so many that the worst should go.
    bool AreTooMany() const { return static_cast<int>(clauses_.size()) > most_; }

    /// Drops the wider spread half of those that are not kept for good. The trail has to be at level 0, so that no
    /// clause is a reason that is asked for again.
    void DropWorst();

 private:
    struct Watch {
        int clause;
        Literal other;  ///< one more literal of it: if that is true there is nothing to do
    };

    void WatchFirstTwo(int index);
    std::vector<Watch>& WatchesOf(Literal literal) { return watches_[literal.Index()]; }

    int spanCount_;
    int most_ = 2000;
    std::vector<Clause> clauses_;
    std::vector<std::vector<Watch>> watches_;  ///< by literal; empty before there is a clause
};

}  // namespace tidewalk
