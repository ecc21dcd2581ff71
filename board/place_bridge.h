// SPDX-License-Identifier: MIT
// Laying, doubling and removing bridges. Whether a move is legal is not asked: only the check judges the result.
#pragma once

#include "board/board.h"

namespace tidewalk {

/// Cycle: no bridge, one, two, none again. Double: two at once.
enum class PlaceMode { Cycle = 0, Double = 1 };

/// Changes the bridge between the islands `a` and `b`. `want` is the count asked for when there is a bridge already.
/// Cells that are no islands, not in one row or column, or the same, change nothing.
void PlaceBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b, int want);

/// Puts the bridge between `a` and `b`, as it is before a change, on top of the undo list.
void PushUndo(Board& board, CellNumber a, CellNumber b);

}  // namespace tidewalk
