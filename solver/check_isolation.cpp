// SPDX-License-Identifier: MIT
#include "solver/check_isolation.h"

#include <array>

namespace tidewalk {

namespace {

bool CanGrow(const Game& game, CellNumber island) {
    return !game.OpenNeighbours(game.CellRow[island], game.CellCol[island]).Empty();
}

/// True when the group of `start` is closed for good and not the whole puzzle. Adds what it walked over to `examined`,
/// which holds parts of groups that can still grow: a walk ends with the first member that can.
bool IsIsolated(const Game& game, CellNumber start, CellSet& examined) {
    std::array<std::uint16_t, kMaxCells> toVisit;
    int waiting = 0;
    int size = 0;
    CellSet group;
    const auto visit = [&](CellNumber island) {
        group.Insert(island);
        toVisit[static_cast<std::size_t>(waiting++)] = static_cast<std::uint16_t>(island);
    };
    visit(start);
    while (waiting > 0) {
        const CellNumber member = toVisit[static_cast<std::size_t>(--waiting)];
        ++size;
        if (CanGrow(game, member) || examined.Contains(member)) {
            examined.InsertAll(group);
            return false;
        }
        for (const CellNumber joined : game.ConnectedList[member]) {
            if (!group.Contains(joined)) visit(joined);
        }
    }
    examined.InsertAll(group);
    return size != game.sights.islandCount;
}

}  // namespace

CellNumber CheckIsolation(const Game& game, CellNumber island) {
    CellSet examined;
    if (island != 0 && IsIsolated(game, island, examined)) return island;
    const CellSet& islands = game.sights.islands;
    for (CellNumber id = islands.First(); id != 0; id = islands.NextFrom(id + 1)) {
        if (game.IslandAt(id) < 0 || CanGrow(game, id) || examined.Contains(id)) continue;
        if (IsIsolated(game, id, examined)) return id;
    }
    return 0;
}

}  // namespace tidewalk
