// SPDX-License-Identifier: MIT
// Finding and counting the solutions of a puzzle exactly, with nothing of the rules' solver in it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/may_go_on.h"
#include "model/puzzle.h"
#include "solver/archipelago.h"

namespace tidewalk {

/// How many bridges lie on each span of an archipelago.
using SpanBridges = std::vector<std::uint8_t>;

/// The solutions of a board, up to `limit` different ones (at least 1); none for a board without islands. `mayGoOn` is
/// asked before every choice. Nothing when it said no before the answer was known.
std::optional<std::vector<SpanBridges>> FindSolutions(const Archipelago& board, int limit, const MayGoOn& mayGoOn);

/// The puzzle of which `board` was made, with such bridges as its links.
Puzzle WithBridges(const Puzzle& puzzle, const Archipelago& board, const SpanBridges& bridges);

/// How many solutions the puzzle's numbers have, counted up to `limit`, which is at least 1. A board without islands
/// has none.
///
/// Nothing when that could not be told within `steps` choices.
std::optional<int> CountSolutions(const Puzzle& puzzle, int limit, std::int64_t steps = 100000);

/// The same without a fixed bound: `mayGoOn` is asked before every choice.
std::optional<int> CountSolutionsWhile(const Puzzle& puzzle, int limit, const MayGoOn& mayGoOn);

}  // namespace tidewalk
