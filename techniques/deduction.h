// SPDX-License-Identifier: MIT
// One step on the way to a solution: what follows from a position, and by which technique.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "solver/laid_bridges.h"
#include "techniques/position.h"

namespace tidewalk {

/// The ways to conclude something, from easy to hard.
enum class Technique {
    Last,     ///< an island needs all that its neighbours can take
    Least,    ///< what the other neighbours cannot take goes to this one
    NoMore,   ///< a finished island or a bridge across leaves a span as it is
    CutOff,   ///< bridges that would complete a group while other islands remain
    WayOut,   ///< without bridges on this span the board would fall apart
    Suppose,  ///< the opposite leads to a contradiction
    Trial     ///< only the search tells
};

constexpr int kTechniqueCount = 7;

/// 1 for the easiest technique, 7 for the hardest.
constexpr int LevelOf(Technique technique) {
    return static_cast<int>(technique) + 1;
}

/// The technique's short name in reports: last, least, nomore, cutoff, wayout, suppose, trial.
std::string_view TechniqueId(Technique technique);

/// The technique's name for people, "The last bridges".
std::string_view TechniqueName(Technique technique);

/// A number of bridges on a span, those that lie there included.
struct SpanBound {
    int span = 0;
    int bridges = 0;
};

/// Why a supposition cannot be.
struct Contradiction {
    enum class Kind {
        TooLittleRoom,  ///< an island's neighbours cannot take what it needs
        ClosedOff,      ///< a group with the island in it has no way out
        FallsApart      ///< some islands cannot be reached from the island any more
    };
    Kind kind = Kind::TooLittleRoom;
    int isle = 0;
    int reach = 0;  ///< how many rounds of conclusions from island to island led there, at least 1
};

/// What was supposed of a span, and what came of it.
struct Supposition {
    SpanBound supposed;   ///< the bridges that were supposed to lie on the span
    bool isMost = false;  ///< no more than these; otherwise at least these
    Contradiction contradiction;
};

/// What follows from a position. It holds in every solution that the position admits.
struct Deduction {
    Technique technique = Technique::Last;
    std::optional<Rule> rule;                ///< the named rule that says the same, if there is one
    std::vector<int> isles;                  ///< the islands it looks at, the one that it is about first
    std::vector<SpanBound> must;             ///< at least so many bridges
    std::vector<SpanBound> cannot;           ///< at most so many bridges
    std::optional<Supposition> supposition;  ///< of the technique of that name
};

/// Lays the bridges of a deduction and notes what cannot be.
void Apply(Position& position, const Deduction& deduction);

}  // namespace tidewalk
