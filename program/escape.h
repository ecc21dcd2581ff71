// SPDX-License-Identifier: MIT
// The Escape key.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Lets go of the selected island; with none selected, and while a job runs, it is the Cancel button's key.
void can2_Click(Game& game);

}  // namespace tidewalk
