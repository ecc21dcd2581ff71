// SPDX-License-Identifier: MIT
// One deduction after the other, the easiest first.
#pragma once

#include <optional>

#include "model/may_go_on.h"
#include "techniques/deduction.h"

namespace tidewalk {

/// What the deductions are for.
enum class Purpose {
    Path,  ///< a whole way: also that a span takes one bridge at most
    Hint   ///< a step for a player, whose board can show bridges and spans without one
};

/// Finds what follows from a position, always by the easiest technique that says anything.
class Deducer {
 public:
    /// `position` belongs to the caller, outlives this object, and is changed by `Apply` alone.
    Deducer(Position& position, Purpose purpose) : position_(position), purpose_(purpose) {}

    /// The next deduction, not applied yet. Nothing when the position is solved, when only a search would help, or when
    /// `mayGoOn` said no.
    std::optional<Deduction> Next(const MayGoOn& mayGoOn);

 private:
    using Finder = std::optional<Deduction> (*)(const Position&, int);

    /// The first deduction about one of the islands, which leave the set when they have nothing to say.
    std::optional<Deduction> FirstOf(IsleSet& awaiting, Finder find) const;
    std::optional<Deduction> FirstCutOff(bool doublesToo) const;

    Position& position_;
    Purpose purpose_;
    IsleSet awaitingLast_;
    IsleSet awaitingLeast_;
    IsleSet awaitingNoMore_;
};

}  // namespace tidewalk
