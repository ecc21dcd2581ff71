// SPDX-License-Identifier: MIT
// The New Puzzle command, and the Cancel button.
#pragma once

#include "game/game.h"
#include "generator/create_puzzle.h"

namespace tidewalk {

/// Makes a puzzle of the size in the size box, writes it to "temp.txt" in the current directory and loads it. When that
/// fails, the puzzle that was current before is loaded again.
void cmdnew1_Click(Game& game);
void mnunewpuzx_Click(Game& game);

/// Asks the running job to stop; without one it empties the status line.
void cmdcancel_Click(Game& game);

/// The right button empties the size box, which stands for a random size.
void GridSize_MouseDown(Game& game, MouseButton button);

/// Makes one puzzle of this size in the running job, with an empty board of the size meanwhile. An earlier wish to
/// cancel is forgotten.
CreatedPuzzle CreateInJob(Game& game, BoardSize size);

}  // namespace tidewalk
