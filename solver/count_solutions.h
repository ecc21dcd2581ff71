// SPDX-License-Identifier: MIT
// Counting the solutions of a puzzle exactly, with nothing of the rules' solver in it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "model/grid.h"

namespace tidewalk {

/// How many solutions the puzzle with these island numbers has, counted up to `limit`, which is at least 1. Cells of
/// 0 or less are water. `rows` and `cols` are 1..25. A board without islands has none.
///
/// Nothing when that could not be told within `steps` choices.
std::optional<int> CountSolutions(const Grid<int>& numbers, int rows, int cols, int limit, std::int64_t steps = 100000);

/// The same without a fixed bound: `mayGoOn` is asked before every choice. Nothing when it said no before the count was
/// known.
std::optional<int> CountSolutionsWhile(const Grid<int>& numbers, int rows, int cols, int limit,
                                       const std::function<bool()>& mayGoOn);

}  // namespace tidewalk
