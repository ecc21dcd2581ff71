// SPDX-License-Identifier: MIT
// How many bridges may lie on each span as far as a search has come, why, and the way back.
#pragma once

#include <cstdint>
#include <vector>

#include "solver/literal.h"

namespace tidewalk {

/// Why a literal is true.
struct Reason {
    enum class Kind : std::uint8_t {
        None,      ///< it was chosen, or holds whatever is chosen
        Isle,      ///< the other spans of the island `index` leave nothing else
        Crossing,  ///< the span `index` is bridged
        Stronger,  ///< the other literal of the span says more
        Clause,    ///< all other literals of the clause `index` are false
        Cut        ///< the islands would fall apart: the same of the trail's cut `index`
    };

    Kind kind = Kind::None;
    int index = 0;
};

/// The literals that are true, in the order in which they became so, and the bounds that follow from them.
class BoundTrail {
 public:
    explicit BoundTrail(int spanCount);

    int Low(int span) const { return bounds_[static_cast<std::size_t>(span)].low; }
    int High(int span) const { return bounds_[static_cast<std::size_t>(span)].high; }
    bool IsOpen(int span) const { return Low(span) < High(span); }

    bool IsTrue(Literal literal) const {
        return literal.IsAtLeast() ? Low(literal.Span()) >= literal.Bridges()
                                   : High(literal.Span()) < literal.Bridges();
    }
    bool IsFalse(Literal literal) const { return IsTrue(!literal); }

    /// Makes an open literal true, and the weaker one of its span with it.
    void Assert(Literal literal, Reason reason);

    int Size() const { return static_cast<int>(literals_.size()); }
    Literal At(int place) const { return literals_[static_cast<std::size_t>(place)]; }

    // Of a literal that is true or false:
    int PlaceOf(Literal literal) const { return facts_[literal.Variable()].place; }
    int LevelOf(Literal literal) const { return facts_[literal.Variable()].level; }
    Reason ReasonOf(Literal literal) const { return facts_[literal.Variable()].reason; }

    /// The bounds of a span when the trail had come to `place`, without what stands there.
    int LowAt(int span, int place) const;
    int HighAt(int span, int place) const;

    /// How many choices are open. What holds at level 0 holds for good.
    int Level() const { return static_cast<int>(levels_.size()); }
    /// Begins a level; a choice is to follow.
    void BeginLevel() { levels_.push_back(literals_.size()); }
    /// The choice with which a level of 1 or more began.
    Literal ChoiceOf(int level) const { return literals_[levels_[static_cast<std::size_t>(level - 1)]]; }
    /// Takes back everything since the end of that level.
    void BackTo(int level);

 private:
    struct Bounds {
        std::int8_t low = 0;
        std::int8_t high = kMostBridges;
    };

    struct Fact {
        int place = 0;
        int level = 0;
        Reason reason;
    };

    void Push(Literal literal, Reason reason);

    std::vector<Bounds> bounds_;  ///< by span
    std::vector<Fact> facts_;     ///< by variable; what stands here of an open one means nothing
    std::vector<Literal> literals_;
    std::vector<std::size_t> levels_;  ///< the size of the trail before each
};

}  // namespace tidewalk
