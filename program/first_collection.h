// SPDX-License-Identifier: MIT
// A collection for a start that finds none.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Says so, makes "TempPuzzles.tdw" in the program folder with one new puzzle of 8x8 and loads it. An older file of
/// that name is lost. When the file cannot be written the reason is shown and the board stays empty.
void MakeFirstCollection(Game& game);

}  // namespace tidewalk
