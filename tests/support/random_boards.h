// SPDX-License-Identifier: MIT
// Random boards for tests that compare two ways of doing the same.
#pragma once

#include <random>

#include "model/game.h"

namespace tidewalk::test {

/// Makes `game` an unsolved board of `rows` by `cols`: islands on about one of `spacing` cells, numbered so that the
/// bridges drawn at random between neighbours solve it, though they need not form one group. With `spoil` one number is
/// changed afterwards.
void MakeRandomBoard(Game& game, std::mt19937& random, int rows, int cols, int spacing, bool spoil);

}  // namespace tidewalk::test
