// SPDX-License-Identifier: MIT
// Checking the player's bridges against the islands' numbers.
#pragma once

#include <optional>

#include "model/game.h"

namespace tidewalk {

/// The bridges of the player that end at the island `id`.
int CountBridges(const Game& game, CellNumber id);

/// The place of the first island, row by row, whose bridges are not as many as its number; nothing when all are right.
/// Crossings and connections are not looked at. `List1` then tells what was counted.
std::optional<CellPlace> CheckBridgeCounts(Game& game);

/// The check button: "All Done!", or the first wrong island framed for a second.
void cmdverify_Click(Game& game);

/// The tick of the timer that takes the frame away.
void Timer1_Timer(Game& game);

}  // namespace tidewalk
