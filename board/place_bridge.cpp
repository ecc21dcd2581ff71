// SPDX-License-Identifier: MIT
#include "board/place_bridge.h"

namespace tidewalk {

namespace {

bool CanBeJoined(const Puzzle& puzzle, CellNumber a, CellNumber b) {
    // A cell of no board may stand for nothing selected. A bridge from an island to itself could not be seen, but the
    // check would count it.
    if (a < 1 || b < 1 || a == b || puzzle.IslandAt(a) < 1 || puzzle.IslandAt(b) < 1) return false;
    return puzzle.CellRow(a) == puzzle.CellRow(b) || puzzle.CellCol(a) == puzzle.CellCol(b);
}

}  // namespace

void PlaceBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b, int want) {
    if (!CanBeJoined(board.puzzle, a, b)) return;
    const int state = board.BridgeState(a, b);
    int target = state == 0 ? 1 : want;
    if (state == 1 || mode == PlaceMode::Double) target = 2;
    if (state == 2 && mode == PlaceMode::Cycle) target = 0;
    board.BridgeState.Set(a, b, target);
}

void PushUndo(Board& board, CellNumber a, CellNumber b) {
    board.history.Push({a, b, board.BridgeState(a, b)});
}

}  // namespace tidewalk
