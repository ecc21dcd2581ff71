// SPDX-License-Identifier: MIT
// The island status list: which island to try next, and which moves it has.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "solver/solver_board.h"

namespace tidewalk {

/// The remaining need in one digit, the number of open neighbours in two, two fields of "000", the island's id, and the
/// moves that are left as "012*1 ".
std::string Text(const StatusLine& line);

/// The line that comes first in text order: of the islands with the smallest need the one with the fewest open
/// neighbours, of these the one with the smallest id. Nothing when no island needs bridges.
std::optional<StatusLine> FirstStatusLine(const SolverBoard& board);

/// A line for each island that needs bridges, by ascending id.
std::vector<std::string> StatusLines(const SolverBoard& board);

/// A line for each choice point of the trial search that is open, the newest first: its number in three digits, a
/// blank, and the status line with the moves that are left.
std::vector<std::string> ChoicePointLines(const SolverBoard& board);

}  // namespace tidewalk
