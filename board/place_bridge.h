// SPDX-License-Identifier: MIT
// What the player does between two islands: laying, doubling and removing bridges, and marking that none goes there.
// Whether a move is legal is not asked: only the check judges the result.
#pragma once

#include <optional>
#include <vector>

#include "board/board.h"

namespace tidewalk {

/// Cycle: no bridge, one, two, none again. Double: two at once.
enum class PlaceMode { Cycle = 0, Double = 1 };

/// What is between the islands `a` and `b`: 0, 1 or 2 bridges, or `kMarked`.
int PairState(const Board& board, CellNumber a, CellNumber b);

/// Puts that there. `kUnmarked` stands for nothing, as 0 does. Bridges and a mark are never there together.
void SetPairState(Board& board, CellNumber a, CellNumber b, int state);

/// Changes the bridge between the islands `a` and `b`. `want` is the count asked for when there is a bridge already.
/// Cells that are no islands, not in one row or column, or the same, change nothing.
void PlaceBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b, int want);

/// A move: puts `state` between two islands and keeps in the history what was there.
void MakeMove(Board& board, CellNumber a, CellNumber b, int state);

/// A move of the player's: `PlaceBridge` for one bridge, kept in the history even where it is refused.
void LayBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b);

/// The move that takes away what is between two islands of one row or column: the bridges, else the mark. Where there
/// is neither, islands that see each other get the mark.
void ClearOrMark(Board& board, CellNumber a, CellNumber b);

/// The islands whose bridges lie over a cell of water; of bridges that cross there those with the smallest ids. Nothing
/// where none lies.
std::optional<PairMarks::Pair> BridgeOver(const Board& board, CellPlace cell);

/// The pairs of islands that see each other, by ascending ids, the smaller id of a pair first.
std::vector<PairMarks::Pair> PairsInSight(const Puzzle& puzzle);

/// True when two islands lie in one row or column with nothing but water between.
bool SeeEachOther(const Puzzle& puzzle, CellNumber a, CellNumber b);

}  // namespace tidewalk
