// SPDX-License-Identifier: MIT
// Boards that the benchmarks share.
#pragma once

#include <random>

#include "model/game.h"

namespace tidewalk::bench {

/// Makes `game` an unsolved board full of islands, as imported puzzles can be: numbers come from bridges drawn at
/// random between neighbours, so that a solver has much to try.
void MakeDenseBoard(Game& game, std::mt19937& random, int side);

}  // namespace tidewalk::bench
