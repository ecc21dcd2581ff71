// SPDX-License-Identifier: MIT
// The deduction rules: what an island's need and its open neighbours force.
#pragma once

#include "solver/solver_board.h"

namespace tidewalk {

/// One pass over the board, row by row: at each island that still needs bridges the first rule that fits is applied.
///
/// The rules do not check that a bridge fits, so on an inconsistent puzzle a need can fall below 0 and a link can be
/// asked for more than it takes. Whether the pass laid anything shows in `ConnectCount`.
void ApplyRules(SolverBoard& board);

}  // namespace tidewalk
