// SPDX-License-Identifier: MIT
// Judging bridges: those of a stored solution or of a solve.
#pragma once

#include "model/puzzle.h"

namespace tidewalk {

/// Compares every island's number with its bridges in the link list: single ones count 1, double ones 2. Returns 1 when
/// an island has another number of them, else 0. Crossings and connections are not looked at.
int CheckLinkTotals(const Puzzle& puzzle);

/// True when the bridges in the link list solve the puzzle: every island has its number, every bridge joins two islands
/// of one row or column, none runs over an island or across another bridge, and all islands are one group.
bool IsValidSolution(const Puzzle& puzzle);

}  // namespace tidewalk
