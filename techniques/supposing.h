// SPDX-License-Identifier: MIT
// Supposing something of a span and following it until it contradicts itself.
#pragma once

#include <optional>

#include "model/may_go_on.h"
#include "techniques/deduction.h"

namespace tidewalk {

/// Follows what `position` says, round by round from the islands touched, by counting, by groups that must not be cut
/// off, and by ways out. What follows is laid. The contradiction that is met, if one is met within so many rounds.
std::optional<Contradiction> Follow(Position& position, int mostRounds);

/// Of all suppositions about one span that contradict themselves the one whose contradiction is nearest: a further
/// bridge on it, or none. With `doublesToo` also a second bridge where none lies yet.
///
/// `position` is left as it was. Nothing when no supposition contradicts itself, or `mayGoOn`, which is asked before
/// each span, said no.
std::optional<Deduction> FindSupposition(Position& position, bool doublesToo, const MayGoOn& mayGoOn);

}  // namespace tidewalk
