// SPDX-License-Identifier: MIT
// What is said of the puzzle on the board: its size, its grade and the number of its solutions.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// Shows the size of the puzzle on the board at once, and its grade and solutions when they are known. Called whenever
/// a puzzle comes onto the board.
void AssessBoard(Game& game);

/// "12x15, Hard, one solution"; a puzzle with none or several has no grade.
std::string AssessmentText(BoardSize size, const Assessment& assessment);

}  // namespace tidewalk
