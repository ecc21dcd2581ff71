// SPDX-License-Identifier: MIT
// Setting further islands into a layout: on its bridges, and at the ends of new ones.
#pragma once

#include "model/puzzle.h"
#include "model/random_source.h"

namespace tidewalk {

/// Sets islands into a puzzle whose link list solves it until it has so many of them, or no room for another. None
/// touches another one.
///
/// An island on a bridge parts it in two; one on open water is joined to an island that it sees. While there are fewer
/// than `loops` for as many islands, bridges go from a new island to all others that it sees. So all islands hang
/// together as before. Comes back with the bridges in the link list.
Puzzle AddIslands(const Puzzle& solved, int islands, int loops, RandomSource& random);

}  // namespace tidewalk
