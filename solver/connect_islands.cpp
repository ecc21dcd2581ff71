// SPDX-License-Identifier: MIT
#include "solver/connect_islands.h"

#include <algorithm>

#include "solver/neighbours.h"

namespace tidewalk {

namespace {

/// Sets the marks strictly between two islands of one row or column. Returns true when that changed any.
bool SetMarksBetween(Game& game, CellNumber a, CellNumber b, Cross horizontal, Cross vertical) {
    const CellPlace from = game.PlaceOf(std::min(a, b));
    const CellPlace to = game.PlaceOf(std::max(a, b));
    bool changed = false;
    const auto set = [&](int row, int col, Cross mark) {
        Cross& cell = game.CrossGrid(row, col);
        changed |= cell != mark;
        cell = mark;
    };
    if (from.row == to.row) {
        for (int col = from.col + 1; col < to.col; ++col)
            set(from.row, col, horizontal);
    } else if (from.col == to.col) {
        for (int row = from.row + 1; row < to.row; ++row)
            set(row, from.col, vertical);
    }
    return changed;
}

/// The islands whose view the cells between `a` and `b` belong to have to look again.
void SpoilViewsAcross(Game& game, CellNumber a, CellNumber b) {
    const bool sameRow = game.CellRow[a] == game.CellRow[b];
    const auto& across = sameRow ? game.sights.acrossColumn : game.sights.acrossRow;
    const int step = sameRow ? 1 : game.Cols;
    for (CellNumber id = std::min(a, b) + step; id < std::max(a, b); id += step) {
        if (across[id] == 0) continue;
        const Link& crossed = game.LinkList[across[id]];
        game.staleLists.Insert(crossed.first);
        game.staleLists.Insert(crossed.second);
    }
}

void ChangeNeed(Game& game, CellNumber island, int by) {
    int& need = game.IslandAt(island);
    const bool wasOpen = need > 0;
    need += by;
    TouchIsland(game, island);
    if (wasOpen != (need > 0)) SpoilViewsOf(game, island);
}

bool Join(Game& game, CellNumber a, CellNumber b) {
    if (game.ConnectedList[a].Contains(b)) return false;
    game.ConnectedList[a].Append(b);
    game.ConnectedList[b].Append(a);
    return true;
}

void TakeBack(Game& game, const LaidBridges& laid) {
    ChangeNeed(game, laid.a, laid.count);
    ChangeNeed(game, laid.b, laid.count);
    if (laid.joined) {
        game.ConnectedList[laid.a].Remove(laid.b);
        game.ConnectedList[laid.b].Remove(laid.a);
    }
    if (laid.crossed) {
        SetMarksBetween(game, laid.a, laid.b, Cross::Free, Cross::Free);
        SpoilViewsAcross(game, laid.a, laid.b);
    }
    if (laid.link != 0) game.LinkList.SetState(laid.link, laid.linkState);
    game.BridgesLaid -= laid.count;
}

}  // namespace

void ConnectIslands(Game& game, std::string_view /*rule*/, CellNumber a, CellNumber b, int n) {
    LaidBridges laid;
    laid.a = static_cast<std::uint16_t>(a);
    laid.b = static_cast<std::uint16_t>(b);
    laid.count = static_cast<std::uint8_t>(n);
    laid.link = static_cast<std::uint16_t>(game.LinkList.Find(a, b));
    if (laid.link != 0) laid.linkState = game.LinkList[laid.link].state;
    ChangeNeed(game, a, -n);
    ChangeNeed(game, b, -n);
    laid.joined = Join(game, a, b);
    laid.crossed = MarkCrossed(game, a, b);
    if (laid.crossed) SpoilViewsAcross(game, a, b);
    RefreshStaleLists(game);
    ++game.ConnectCount;
    UseLink(game, a, b, n);
    game.laid.push_back(laid);
}

bool MarkCrossed(Game& game, CellNumber a, CellNumber b) {
    return SetMarksBetween(game, a, b, Cross::H, Cross::V);
}

void TakeBackBridges(Game& game, std::size_t kept) {
    while (game.laid.size() > kept) {
        TakeBack(game, game.laid.back());
        game.laid.pop_back();
    }
    RefreshStaleLists(game);
}

}  // namespace tidewalk
