// SPDX-License-Identifier: MIT
// Random boards for tests and benchmarks of the solver.
#pragma once

#include <random>

#include "model/puzzle.h"

namespace tidewalk::test {

/// Islands on about one of `spacing` cells, numbered so that bridges drawn at random between neighbours solve them,
/// though these need not form one group. With `spoil` one number is 1 too high.
Puzzle MakeRandomPuzzle(std::mt19937& random, BoardSize size, int spacing, bool spoil);

}  // namespace tidewalk::test
