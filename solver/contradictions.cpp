// SPDX-License-Identifier: MIT
#include "solver/contradictions.h"

#include <algorithm>
#include <array>

#include "solver/neighbours.h"

namespace tidewalk {

namespace {

/// What the open neighbours of `island` can still give it: over each link at most its capacity and the other's need.
int CanBeGiven(const SolverBoard& board, CellNumber island) {
    int sum = 0;
    for (const CellNumber neighbour : board.OpenNeighbours[island]) {
        sum += std::min(GetLinkValue(board, island, neighbour), board.IslandGrid[neighbour]);
    }
    return sum;
}

bool CanGrow(const SolverBoard& board, CellNumber island) {
    return !board.OpenNeighbours[island].Empty();
}

/// True when the group of `start` is closed for good and not the whole puzzle. Adds what it walked over to `examined`,
/// which holds parts of groups that can still grow: a walk ends with the first member that can.
bool IsIsolated(const SolverBoard& board, CellNumber start, CellSet& examined) {
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
        if (CanGrow(board, member) || examined.Contains(member)) {
            examined.InsertAll(group);
            return false;
        }
        for (const CellNumber joined : board.ConnectedList[member]) {
            if (!group.Contains(joined)) visit(joined);
        }
    }
    examined.InsertAll(group);
    return size != board.sights.islandCount;
}

bool NeedsCanBeMet(const SolverBoard& board) {
    const CellSet& changed = board.awaitingCheck;
    for (CellNumber id = changed.First(); id != 0; id = changed.NextFrom(id + 1)) {
        const int need = board.IslandGrid[id];
        if (need < 0 || (need > 0 && need > CanBeGiven(board, id))) return false;
    }
    return true;
}

}  // namespace

CellNumber CheckIsolation(const SolverBoard& board) {
    CellSet examined;
    const CellSet& changed = board.awaitingCheck;
    for (CellNumber id = changed.First(); id != 0; id = changed.NextFrom(id + 1)) {
        if (CanGrow(board, id) || examined.Contains(id)) continue;
        if (IsIsolated(board, id, examined)) return id;
    }
    return 0;
}

bool FindContradiction(SolverBoard& board) {
    if (board.overdrawnLinks > 0 || !NeedsCanBeMet(board) || CheckIsolation(board) != 0) return true;
    board.awaitingCheck.Clear();
    return false;
}

}  // namespace tidewalk
