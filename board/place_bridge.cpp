// SPDX-License-Identifier: MIT
#include "board/place_bridge.h"

#include "board/drawing.h"

namespace tidewalk {

namespace {

void Unjoin(Game& game, CellNumber a, CellNumber b) {
    game.ConnectedList[a].Remove(b);
    game.ConnectedList[b].Remove(a);
}

void Join(Game& game, CellNumber a, CellNumber b) {
    if (!game.ConnectedList[a].Contains(b)) game.ConnectedList[a].Append(b);
    if (!game.ConnectedList[b].Contains(a)) game.ConnectedList[b].Append(a);
}

/// Takes the bridge away without drawing the islands over its ends again.
void TakeAway(Game& game, CellNumber a, CellNumber b) {
    Unjoin(game, a, b);
    game.BridgeState.Set(a, b, 0);
    EraseBridge(game, a, b);
}

}  // namespace

int PlaceBridge(Game& game, PlaceMode mode, CellNumber a, CellNumber b, int want) {
    const auto [rowA, colA] = game.PlaceOf(a);
    const auto [rowB, colB] = game.PlaceOf(b);
    // A bridge from an island to itself could not be seen, but the check would count it.
    if ((rowA != rowB && colA != colB) || a == b) return 0;
    if (game.IslandAt(a) < 1 || game.IslandAt(b) < 1) return 0;
    const int state = game.BridgeState(a, b);
    int target = state == 0 ? 1 : want;
    if (state == 1 || mode == PlaceMode::Double) target = 2;
    if (mode == PlaceMode::Cycle) {
        if (state == 2) {
            TakeAway(game, a, b);
            target = 0;
        }
        if (target == 1) {
            DrawBridge(game, a, b, 1);
            game.BridgeState.Set(a, b, 1);
        }
    }
    if (target == 2) {
        Join(game, a, b);
        game.BridgeState.Set(a, b, 2);
        DrawBridge(game, a, b, 2);
    }
    DrawIsland(game, a);
    DrawIsland(game, b);
    return 0;
}

void RemoveBridge(Game& game, CellNumber a, CellNumber b) {
    TakeAway(game, a, b);
    DrawIsland(game, a);
    DrawIsland(game, b);
}

void PushUndo(Game& game, CellNumber a, CellNumber b) {
    game.UndoList.push_front({a, b, game.BridgeState(a, b)});
    ++game.undoRevision;
}

}  // namespace tidewalk
