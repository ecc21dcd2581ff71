// SPDX-License-Identifier: MIT
#include "solver/neighbours.h"

#include <algorithm>

namespace tidewalk {

namespace {

// The order in which an island looks around.
enum Direction { kLeft, kRight, kUp, kDown };

/// Notes that two islands see each other.
void AddSight(Game& game, CellNumber from, Direction direction, CellNumber to, Direction back) {
    game.sights.from[from][direction].island = static_cast<std::uint16_t>(to);
    game.sights.from[to][back].island = static_cast<std::uint16_t>(from);
}

/// Looks along one row or column, `count` cells from (row, col) on by the given step.
void LookAlong(Game& game, CellPlace cell, CellPlace step, int count, Direction forward, Direction back) {
    CellNumber last = 0;
    for (; count > 0; --count, cell.row += step.row, cell.col += step.col) {
        const int value = game.IslandGrid(cell.row, cell.col);
        if (value < 0) continue;
        const CellNumber id = value > 0 ? game.CellId(cell.row, cell.col) : 0;
        if (id != 0 && last != 0) AddSight(game, last, forward, id, back);
        last = id;
    }
}

/// Notes which link runs over each of the cells between two neighbours.
void NoteCellsBetween(PerCell<std::uint16_t>& across, CellNumber a, CellNumber b, int step, std::uint16_t link) {
    for (CellNumber id = a + step; id < b; id += step)
        across[id] = link;
}

void AddLinksOf(Game& game, CellNumber island) {
    auto& sights = game.sights.from[island];
    for (int direction = 0; direction < Sights::kDirections; ++direction) {
        const CellNumber other = sights[direction].island;
        if (other == 0) continue;
        game.OpenNeighbours(game.CellRow[island], game.CellCol[island]).Append(other);
        game.LinkList.Append(island, other, 2);
        const auto link = static_cast<std::uint16_t>(game.LinkList.Find(island, other));
        sights[direction].link = link;
        if (direction == kRight) NoteCellsBetween(game.sights.acrossRow, island, other, 1, link);
        if (direction == kDown) NoteCellsBetween(game.sights.acrossColumn, island, other, game.Cols, link);
    }
}

/// True when a bridge runs across the view from `island` to `other`, over a cell strictly between them.
bool ViewIsCrossed(const Game& game, CellNumber island, CellNumber other, int direction) {
    const CellPlace from = game.PlaceOf(std::min(island, other));
    const CellPlace to = game.PlaceOf(std::max(island, other));
    if (direction == kLeft || direction == kRight) {
        for (int col = from.col + 1; col < to.col; ++col) {
            if (game.CrossGrid(from.row, col) == Cross::V) return true;
        }
    } else {
        for (int row = from.row + 1; row < to.row; ++row) {
            if (game.CrossGrid(row, from.col) == Cross::H) return true;
        }
    }
    return false;
}

NeighbourList LookAround(const Game& game, CellNumber island) {
    NeighbourList open;
    if (game.IslandAt(island) < 1) return open;
    const auto& sights = game.sights.from[island];
    for (int direction = 0; direction < Sights::kDirections; ++direction) {
        const auto [other, link] = sights[direction];
        // A finished island blocks the view. One that was given too many bridges does not, but no link leads past it.
        if (other == 0 || game.IslandAt(other) <= 0 || game.LinkList[link].state == 0) continue;
        if (!ViewIsCrossed(game, island, other, direction)) open.Append(other);
    }
    return open;
}

}  // namespace

void BuildNeighbourLists(Game& game) {
    game.OpenNeighbours.Fill({});
    game.LinkList.Clear(game.Cols);
    game.sights = {};
    for (int row = 1; row <= game.Rows; ++row)
        LookAlong(game, {row, 1}, {0, 1}, game.Cols, kRight, kLeft);
    for (int col = 1; col <= game.Cols; ++col)
        LookAlong(game, {1, col}, {1, 0}, game.Rows, kDown, kUp);
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        if (game.IslandAt(id) < 1) continue;
        game.sights.islands.Insert(id);
        ++game.sights.islandCount;
        AddLinksOf(game, id);
    }
    game.staleLists.Clear();
    game.awaitingRules = game.sights.islands;
    game.awaitingCheck = game.sights.islands;
}

void RefreshNeighbours(Game& game) {
    game.staleLists = game.sights.islands;
    RefreshStaleLists(game);
}

void RefreshStaleLists(Game& game) {
    for (CellNumber id = game.staleLists.First(); id != 0; id = game.staleLists.NextFrom(id + 1)) {
        const NeighbourList open = LookAround(game, id);
        NeighbourList& before = game.OpenNeighbours(game.CellRow[id], game.CellCol[id]);
        if (open == before) continue;
        before = open;
        game.awaitingRules.Insert(id);
        game.awaitingCheck.Insert(id);
    }
    game.staleLists.Clear();
}

int GetLinkValue(const Game& game, CellNumber a, CellNumber b) {
    const int link = game.LinkList.Find(a, b);
    return link == 0 ? 0 : game.LinkList[link].state;
}

void UseLink(Game& game, CellNumber a, CellNumber b, int n) {
    game.BridgesLaid += n;
    const int link = game.LinkList.Find(a, b);
    const int capacity = link == 0 ? 0 : game.LinkList[link].state;
    if (n > capacity) ++game.overdrawnLinks;
    if (link == 0) return;
    game.LinkList.SetState(link, std::max(capacity - n, 0));
    for (const CellNumber end : {a, b}) {
        game.staleLists.Insert(end);
        game.awaitingRules.Insert(end);
        game.awaitingCheck.Insert(end);
    }
}

void TouchIsland(Game& game, CellNumber island) {
    game.staleLists.Insert(island);
    game.awaitingRules.Insert(island);
    game.awaitingCheck.Insert(island);
    for (const auto& sight : game.sights.from[island]) {
        // Seeing nobody is noted as island 0, which no visit of a set ever finds.
        game.awaitingRules.Insert(sight.island);
        game.awaitingCheck.Insert(sight.island);
    }
}

void SpoilViewsOf(Game& game, CellNumber island) {
    for (const auto& sight : game.sights.from[island])
        game.staleLists.Insert(sight.island);
}

}  // namespace tidewalk
