// SPDX-License-Identifier: MIT
// The command that shuffles the current collection.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Shuffles the current collection into a file beside it.
void Command5_Click(Game& game);

}  // namespace tidewalk
