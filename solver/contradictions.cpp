// SPDX-License-Identifier: MIT
#include "solver/contradictions.h"

#include <algorithm>

#include "solver/check_isolation.h"
#include "solver/neighbours.h"

namespace tidewalk {

namespace {

/// What the open neighbours of `island` can still give it: over each link at most its capacity and the other's need.
int CanBeGiven(const Game& game, CellNumber island) {
    int sum = 0;
    for (const CellNumber neighbour : game.OpenNeighbours(game.CellRow[island], game.CellCol[island])) {
        sum += std::min(GetLinkValue(game, island, neighbour), game.IslandAt(neighbour));
    }
    return sum;
}

bool NeedsCanBeMet(const Game& game) {
    const CellSet& changed = game.awaitingCheck;
    for (CellNumber id = changed.First(); id != 0; id = changed.NextFrom(id + 1)) {
        const int need = game.IslandAt(id);
        if (need < 0 || (need > 0 && need > CanBeGiven(game, id))) return false;
    }
    return true;
}

}  // namespace

bool FindContradiction(Game& game) {
    if (game.overdrawnLinks > 0 || !NeedsCanBeMet(game) || CheckIsolation(game, 0) != 0) return true;
    game.awaitingCheck.Clear();
    return false;
}

}  // namespace tidewalk
