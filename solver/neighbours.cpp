// SPDX-License-Identifier: MIT
#include "solver/neighbours.h"

#include <algorithm>

namespace tidewalk {

namespace {

// The order in which an island looks around.
enum Direction { kLeft, kRight, kUp, kDown };

/// Notes that two islands see each other.
void AddSight(SolverBoard& board, CellNumber from, Direction direction, CellNumber to, Direction back) {
    board.sights.from[from][direction].island = static_cast<std::uint16_t>(to);
    board.sights.from[to][back].island = static_cast<std::uint16_t>(from);
}

/// Looks along one row or column, `count` cells from `id` on in steps of `step`.
void LookAlong(SolverBoard& board, CellNumber id, int step, int count, Direction forward, Direction back) {
    CellNumber last = 0;
    for (; count > 0; --count, id += step) {
        if (board.IslandGrid[id] < 0) continue;
        const CellNumber island = board.IslandGrid[id] > 0 ? id : 0;
        if (island != 0 && last != 0) AddSight(board, last, forward, island, back);
        last = island;
    }
}

/// Notes which link runs over each of the cells between two neighbours.
void NoteCellsBetween(PerCell<std::uint16_t>& across, CellNumber a, CellNumber b, int step, std::uint16_t link) {
    for (CellNumber id = a + step; id < b; id += step)
        across[id] = link;
}

void AddLinksOf(SolverBoard& board, CellNumber island) {
    auto& sights = board.sights.from[island];
    for (int direction = 0; direction < Sights::kDirections; ++direction) {
        const CellNumber other = sights[direction].island;
        if (other == 0) continue;
        board.OpenNeighbours[island].Append(other);
        board.LinkList.Append(island, other, 2);
        const auto link = static_cast<std::uint16_t>(board.LinkList.Find(island, other));
        sights[direction].link = link;
        if (direction == kRight) NoteCellsBetween(board.sights.acrossRow, island, other, 1, link);
        if (direction == kDown) NoteCellsBetween(board.sights.acrossColumn, island, other, board.Cols, link);
    }
}

NeighbourList LookAround(const SolverBoard& board, CellNumber island) {
    NeighbourList open;
    if (board.IslandGrid[island] < 1) return open;
    for (const auto [other, link] : board.sights.from[island]) {
        // A finished island blocks the view. One that was given too many bridges does not, but no link leads past it.
        if (other == 0 || board.IslandGrid[other] <= 0) continue;
        if (board.LinkList[link].state != 0 && board.blockedCells[link] == 0) open.Append(other);
    }
    return open;
}

}  // namespace

void BuildNeighbourLists(SolverBoard& board) {
    board.OpenNeighbours.Fill({});
    board.LinkList.Clear(board.Cols);
    board.blockedCells.fill(0);
    board.sights = {};
    for (int row = 0; row < board.Rows; ++row)
        LookAlong(board, row * board.Cols + 1, 1, board.Cols, kRight, kLeft);
    for (int col = 1; col <= board.Cols; ++col)
        LookAlong(board, col, board.Cols, board.Rows, kDown, kUp);
    for (CellNumber id = 1; id <= board.CellCount; ++id) {
        if (board.IslandGrid[id] < 1) continue;
        board.sights.islands.Insert(id);
        ++board.sights.islandCount;
        AddLinksOf(board, id);
    }
    board.staleLists.Clear();
    board.awaitingRules = board.sights.islands;
    board.awaitingCheck = board.sights.islands;
}

void RefreshNeighbours(SolverBoard& board) {
    board.staleLists = board.sights.islands;
    RefreshStaleLists(board);
}

void RefreshStaleLists(SolverBoard& board) {
    for (CellNumber id = board.staleLists.First(); id != 0; id = board.staleLists.NextFrom(id + 1)) {
        const NeighbourList open = LookAround(board, id);
        NeighbourList& before = board.OpenNeighbours[id];
        if (open == before) continue;
        before = open;
        board.awaitingRules.Insert(id);
        board.awaitingCheck.Insert(id);
    }
    board.staleLists.Clear();
}

int GetLinkValue(const SolverBoard& board, CellNumber a, CellNumber b) {
    const int link = board.LinkList.Find(a, b);
    return link == 0 ? 0 : board.LinkList[link].state;
}

void UseLink(SolverBoard& board, CellNumber a, CellNumber b, int n) {
    board.BridgesLaid += n;
    const int link = board.LinkList.Find(a, b);
    const int capacity = link == 0 ? 0 : board.LinkList[link].state;
    if (n > capacity) ++board.overdrawnLinks;
    if (link == 0) return;
    board.LinkList.SetState(link, std::max(capacity - n, 0));
    for (const CellNumber end : {a, b}) {
        board.staleLists.Insert(end);
        board.awaitingRules.Insert(end);
        board.awaitingCheck.Insert(end);
    }
}

void TouchIsland(SolverBoard& board, CellNumber island) {
    board.staleLists.Insert(island);
    board.awaitingRules.Insert(island);
    board.awaitingCheck.Insert(island);
    for (const auto& sight : board.sights.from[island]) {
        // Seeing nobody is noted as island 0, which no visit of a set ever finds.
        board.awaitingRules.Insert(sight.island);
        board.awaitingCheck.Insert(sight.island);
    }
}

void SpoilViewsOf(SolverBoard& board, CellNumber island) {
    for (const auto& sight : board.sights.from[island])
        board.staleLists.Insert(sight.island);
}

}  // namespace tidewalk
