// SPDX-License-Identifier: MIT
// Telling that the bridges laid so far lead to no solution.
#pragma once

#include "solver/solver_board.h"

namespace tidewalk {

/// Looks for a group of joined islands none of which has an open neighbour left, unless the group is the whole puzzle.
/// Returns an island of such a group, or 0.
///
/// Looks at the islands about which something changed since `FindContradiction` last found nothing: a group is closed
/// by its last open neighbour going, or by being joined to another one, and both change one of its islands.
CellNumber CheckIsolation(const SolverBoard& board);

/// True when the bridges laid so far cannot be part of a solution: a need fell below 0, a link was asked for more than
/// it takes, an island needs more than its open neighbours can give, or a group of islands is isolated.
///
/// To be asked when the open neighbours are fresh, as after every pass of the rules. Looks at the islands about which
/// something changed since it last found nothing.
bool FindContradiction(SolverBoard& board);

}  // namespace tidewalk
