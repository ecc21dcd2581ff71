// SPDX-License-Identifier: MIT
// Making one random puzzle.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Makes a puzzle of the current `Rows` by `Cols`, each 7..25. A `Job` has to be running.
///
/// `failed` is 0 when `IslandGrid` holds the new puzzle and `LinkList` its solution; `BusyFlag` then stays set. `grade`
/// is the number of trials that the solver needed. `failed` is 1 after five layouts that the solver did not solve, or
/// when the job is to stop; `BusyFlag` is then clear. `IslandGrid` holds the numbers of the last layout and `LinkList`
/// is empty, unless the window was closed or another puzzle was loaded meanwhile, which is then left alone.
void CreatePuzzle(Game& game, int& grade, int& failed);

/// A random number of rows or columns: 7..24, never 25.
int DrawRandomSide(Game& game);

}  // namespace tidewalk
