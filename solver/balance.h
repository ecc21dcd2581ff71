// SPDX-License-Identifier: MIT
// Counting bridges from both of their ends.
#pragma once

#include "solver/archipelago.h"
#include "solver/bound_trail.h"

namespace tidewalk {

/// False when the bridges on the open spans cannot be as many as the islands need. Where islands can be coloured black
/// and white so that every open span joins two colours, all black ones together need what all white ones need; where
/// they cannot, all together need an even number.
///
/// A search that only knows single islands takes exponential time to see that.
bool IsBalanced(const Archipelago& board, const BoundTrail& trail);

}  // namespace tidewalk
