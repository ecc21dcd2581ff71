// SPDX-License-Identifier: MIT
// Changing bridges of a layout until it is of a wanted character.
#pragma once

#include "generator/character.h"
#include "generator/solved_layout.h"
#include "model/random_source.h"

namespace tidewalk {

/// Lays and takes away whole bridges, drawn at random, and makes bridges single or double until the layout has such
/// loops and doubles. What is within the figures already stays as it is, all islands hang together as before. False
/// when no further bridge has room, or the figures allow no number of doubles; the layout is then as near as it came.
bool FitFigures(SolvedLayout& layout, const Character& character, RandomSource& random);

}  // namespace tidewalk
