// SPDX-License-Identifier: MIT
// The Hint command.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Tells the next step from the player's bridges, press by press: where to look and by which technique; why, and which
/// bridges follow; then it lays them, as moves that can be taken back. Bridges that no solution holds are told first,
/// and shown one by one. A move in between begins a new hint.
void mnuhint_Click(Game& game);

}  // namespace tidewalk
