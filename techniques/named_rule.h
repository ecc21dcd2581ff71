// SPDX-License-Identifier: MIT
// The named rules of the solver, found again in what counting says.
#pragma once

#include <optional>

#include "techniques/counting.h"

namespace tidewalk {

/// The rule that lays the last bridges of such an island, if one has a name.
std::optional<Rule> RuleForLast(const Position& position, int isle, const Rooms& rooms);

/// The rule that lays the bridges that such an island's other neighbours cannot take, if one has a name.
std::optional<Rule> RuleForLeast(const Position& position, int isle, const Rooms& rooms);

}  // namespace tidewalk
