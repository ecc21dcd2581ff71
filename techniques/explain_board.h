// SPDX-License-Identifier: MIT
// The Explain command: the whole way to the solution, step by step on the board.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Finds the way to the solution of the puzzle on the board and shows its first step. The player's bridges stay as they
/// are, and come back to sight with the next move or with the end of the explanation.
void mnuexplain_Click(Game& game);

/// Shows the board as it is before step `step` of the explanation, from 0, and what the step says; with the number of
/// steps the board at the end. Other numbers, and no explanation, change nothing.
void ShowExplainedStep(Game& game, int step);

/// Ends the explanation or the hint, and shows the player's bridges.
void EndExplanation(Game& game);

}  // namespace tidewalk
