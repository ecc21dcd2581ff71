// SPDX-License-Identifier: MIT
// The second way to make a puzzle: a layout of a wanted character is made and changed until it is what was ordered.
#pragma once

#include "generator/create_puzzle.h"
#include "generator/puzzle_order.h"

namespace tidewalk {

/// Whether an order needs this way: it asks for a character, or for a grade that what simply grows hardly ever has.
bool NeedsOrderedLayout(const PuzzleOrder& order);

/// Makes one layout of this size with bridges that solve it, and changes it until it is as ordered or a bound is
/// reached. With a density it is set island by island, otherwise what `CreatePuzzle` makes is enriched.
///
/// It comes back solved unless `CreatePuzzle` had nothing; whether it is as ordered is for `IsAsOrdered` to say.
/// `mayGoOn` is asked before each change; when it says no, what there is comes back.
CreatedPuzzle CreateOrdered(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random,
                            const MayGoOn& mayGoOn);

}  // namespace tidewalk
