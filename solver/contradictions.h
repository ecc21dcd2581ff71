// SPDX-License-Identifier: MIT
// Telling that the bridges laid so far lead to no solution.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// True when the bridges laid so far cannot be part of a solution: a need fell below 0, a link was asked for more than
/// it takes, an island needs more than its open neighbours can give, or a group of islands is isolated.
///
/// To be asked when the open neighbours are fresh, as after every pass of the rules. Looks at the islands about which
/// something changed since it last found nothing.
bool FindContradiction(Game& game);

}  // namespace tidewalk
