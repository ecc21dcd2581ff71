// SPDX-License-Identifier: MIT
// The New Puzzle command, and the Cancel button.
#pragma once

#include "game/game.h"
#include "generator/puzzle_order.h"

namespace tidewalk {

/// Makes a puzzle of the size in the size box as it was ordered last, writes it to "temp.txt" in the current directory
/// and loads it. When that fails, the puzzle that was current before is loaded again.
void cmdnew1_Click(Game& game);
void mnunewpuzx_Click(Game& game);

/// Asks the running job to stop; without one it empties the status line.
void cmdcancel_Click(Game& game);

/// The right button empties the size box, which stands for a random size.
void GridSize_MouseDown(Game& game, MouseButton button);

/// The last puzzle that was made in search of one that is as ordered, and how many were.
struct LastCandidate {
    Candidate candidate;
    int tried = 0;
};

/// Makes puzzles of this size in the running job until one is as ordered, with an empty board of the size meanwhile and
/// the number of those that were tried in the window. It ends without one after `Game::mostCandidates`, or when the job
/// is to stop. Where nothing is ordered, one is made. An earlier wish to cancel is forgotten.
LastCandidate CreateInJob(Game& game, BoardSize size, const PuzzleOrder& order);

/// True when the order asks for more than a puzzle that the solver can solve.
bool AsksForMore(const PuzzleOrder& order);

}  // namespace tidewalk
