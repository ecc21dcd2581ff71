// SPDX-License-Identifier: MIT
// Making many puzzles in a row and appending each to a file.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// OK in the window for batches. True when what was typed is accepted; the output file has an extension then. Otherwise
/// it says what is missing, and the window stays.
bool Form3_Command1_Click(Game& game, BatchRequest& request);

/// Asks for an output file and puts its name into the request; nothing changes when none is chosen.
void Form3_gf1_Click(Game& game, BatchRequest& request);

/// Asks for a number of puzzles, their size, what they should be like and a file, and makes them. A cancel cuts only
/// one puzzle short: the file always grows by as many records as were asked for, unless it cannot be written or the
/// window is closed. In the end it says how many of them lack what was asked for.
void mnucreatemany_Click(Game& game);

/// Makes 1200 puzzles of random sizes into "rand1.txt" in the current directory, as batches were ordered last.
void Command4_Click(Game& game);

/// Ends the running batch as a whole, where Cancel cuts only one puzzle short. The puzzle under way is dropped.
void mnustopbatch_Click(Game& game);

/// True while a batch is under way.
bool BatchRuns(const Game& game);

}  // namespace tidewalk
