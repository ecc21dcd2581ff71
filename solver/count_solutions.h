// SPDX-License-Identifier: MIT
// Counting the solutions of a puzzle exactly, with nothing of the rules' solver in it.
#pragma once

#include <cstdint>
#include <optional>

#include "model/may_go_on.h"
#include "model/puzzle.h"

namespace tidewalk {

/// How many solutions the puzzle's numbers have, counted up to `limit`, which is at least 1. A board without islands
/// has none.
///
/// Nothing when that could not be told within `steps` choices.
std::optional<int> CountSolutions(const Puzzle& puzzle, int limit, std::int64_t steps = 100000);

/// The same without a fixed bound: `mayGoOn` is asked before every choice. Nothing when it said no before the count was
/// known.
std::optional<int> CountSolutionsWhile(const Puzzle& puzzle, int limit, const MayGoOn& mayGoOn);

}  // namespace tidewalk
