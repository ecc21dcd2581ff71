// SPDX-License-Identifier: MIT
// Laying bridges, and taking them back.
#pragma once

#include <cstddef>

#include "solver/solver_board.h"

namespace tidewalk {

/// Lays `n` bridges (1 or 2) between the islands `a` and `b` and refreshes the open neighbours; only after that the
/// link's capacity goes down, so that a link that is full stays open until the next refresh.
///
/// The needs of both islands go down by `n` without a floor; the cells strictly between them are marked crossed.
/// `rule` is kept with what was laid, so that the step can be explained.
void ConnectIslands(SolverBoard& board, Rule rule, CellNumber a, CellNumber b, int n);

/// Takes back the bridges laid last, until `kept` calls of `ConnectIslands` are left. The needs, marks, links and open
/// neighbours are then what they were.
void TakeBackBridges(SolverBoard& board, std::size_t kept);

}  // namespace tidewalk
