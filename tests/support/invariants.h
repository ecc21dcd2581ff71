// SPDX-License-Identifier: MIT
// What holds of a game at any moment, whatever was clicked or read before.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk::test {

/// "" when the game is whole; otherwise a line for each thing that is wrong.
///
/// While a job runs the board is the job's, and only what every index relies on is looked at; so it is once the program
/// ends.
std::string CheckInvariants(const Game& game);

}  // namespace tidewalk::test
