// SPDX-License-Identifier: MIT
// Changing bridges of a layout until its numbers have one solution, of a wanted grade.
#pragma once

#include "generator/character.h"
#include "generator/solved_layout.h"
#include "model/may_go_on.h"
#include "model/random_source.h"
#include "solver/difficulty.h"

namespace tidewalk {

/// Changes bridges where two solutions differ until the layout's own bridges are the only solution. Loops and doubles
/// stay what the character says. False when that did not come about within a bounded number of changes, or `mayGoOn`
/// said no.
bool MakeUnique(SolvedLayout& layout, const Character& character, RandomSource& random, const MayGoOn& mayGoOn);

/// Changes bridges of a layout with one solution, one at a time, until it is of this grade; each change keeps it at one
/// solution and its loops and doubles what the character says. False as above.
bool MakeGrade(SolvedLayout& layout, Grade grade, const Character& character, RandomSource& random,
               const MayGoOn& mayGoOn);

}  // namespace tidewalk
