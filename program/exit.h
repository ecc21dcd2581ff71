// SPDX-License-Identifier: MIT
// The two ways out of the program.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// The Exit button: asks, saves the configuration and ends the program.
void cmdexit_Click(Game& game);

/// The main window is being closed by its frame: the program ends at once, without a question and without saving.
void Form_QueryUnload(Game& game);

}  // namespace tidewalk
