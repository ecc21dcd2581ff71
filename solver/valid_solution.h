// SPDX-License-Identifier: MIT
// Judging bridges: those of a stored solution or of a solve.
#pragma once

#include "model/puzzle.h"

namespace tidewalk {

/// Compares every island's number with its bridges in the link list: single ones count 1, double ones 2. True when
/// every island has its number. Crossings and connections are not looked at.
bool CheckLinkTotals(const Puzzle& puzzle);

/// True when the bridges in the link list solve the puzzle: every island has its number, every bridge joins two islands
/// of one row or column, none runs over an island or across another bridge, and all islands are one group.
bool IsValidSolution(const Puzzle& puzzle);

/// True when the bridges do not solve the puzzle, but would with further ones between islands that touch each other,
/// which a record has no room for.
bool LacksOnlyTouchingBridges(const Puzzle& puzzle);

}  // namespace tidewalk
