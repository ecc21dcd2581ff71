// SPDX-License-Identifier: MIT
// Playing with the keyboard: a focus that goes from island to island, and the moves made there.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// What a key asks of the board. `Previous` and `Next` go row by row, so that they come to every island.
enum class BoardKey { Left, Right, Up, Down, First, Last, Previous, Next, Lay, LayDouble, Remove };

/// The island that the arrow key `key` leads to from `from`: the nearest one in line, and where there is none the
/// nearest one anywhere on that side. `from` itself when the board ends there.
CellNumber IslandTowards(const Puzzle& puzzle, BoardKey key, CellNumber from);

/// Gives the focus to the island `id`; 0 changes nothing. The rubber band follows, and a board that is larger than its
/// container moves so that the island shows.
void FocusIsland(Game& game, CellNumber id);

/// The board receives the keyboard: an island has the focus from now on, the selected one, else the one that was last
/// played on, else the first.
void Picture1_GotFocus(Game& game);

/// A key goes down on the board. `Lay` does what a click on the focused island does, `LayDouble` a click with Shift,
/// `Remove` a click with the right button; the latter two need a selected island. As long as no island has the focus,
/// any key only gives it to one. While a job runs nothing happens.
void Picture1_KeyDown(Game& game, BoardKey key);

/// Lays a bridge from the focused island to the one that it sees in the direction of an arrow key, as two clicks would,
/// and drops the selection. Nothing happens where it sees none there.
void LayTowards(Game& game, BoardKey key);

/// Lets go of the selected island. False when none is selected or a job runs.
bool LetGo(Game& game);

}  // namespace tidewalk
