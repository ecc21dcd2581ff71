// SPDX-License-Identifier: MIT
#include "solver/connect_islands.h"

#include <algorithm>

#include "solver/neighbours.h"

namespace tidewalk {

namespace {

/// One more or one less of the cells of `link` is crossed. Its islands have to look again when it is the first or the
/// last one; 0 is the link of a cell that no view leads over.
void CountBlockedCell(SolverBoard& board, int link, int by) {
    if (link == 0) return;
    std::uint8_t& blocked = board.blockedCells[static_cast<std::size_t>(link)];
    const bool wasBlocked = blocked > 0;
    blocked = static_cast<std::uint8_t>(blocked + by);
    if (wasBlocked == (blocked > 0)) return;
    board.staleLists.Insert(board.LinkList[link].first);
    board.staleLists.Insert(board.LinkList[link].second);
}

/// What runs along a row blocks the views along the column, and the other way round.
void CountMark(SolverBoard& board, CellNumber id, Cross mark, int by) {
    if (mark == Cross::H) CountBlockedCell(board, board.sights.acrossColumn[id], by);
    if (mark == Cross::V) CountBlockedCell(board, board.sights.acrossRow[id], by);
}

/// Sets the marks strictly between two islands of one row or column. Returns true when that changed any.
bool SetMarksBetween(SolverBoard& board, CellNumber a, CellNumber b, Cross horizontal, Cross vertical) {
    const bool sameRow = board.CellRow[a] == board.CellRow[b];
    if (!sameRow && board.CellCol[a] != board.CellCol[b]) return false;
    const Cross mark = sameRow ? horizontal : vertical;
    const int step = sameRow ? 1 : board.Cols;
    bool changed = false;
    for (CellNumber id = std::min(a, b) + step; id < std::max(a, b); id += step) {
        Cross& cell = board.CrossGrid[id];
        if (cell == mark) continue;
        CountMark(board, id, cell, -1);
        CountMark(board, id, mark, 1);
        cell = mark;
        changed = true;
    }
    return changed;
}

void ChangeNeed(SolverBoard& board, CellNumber island, int by) {
    int& need = board.IslandGrid[island];
    const bool wasOpen = need > 0;
    need += by;
    TouchIsland(board, island);
    if (wasOpen != (need > 0)) SpoilViewsOf(board, island);
}

bool Join(SolverBoard& board, CellNumber a, CellNumber b) {
    if (board.ConnectedList[a].Contains(b)) return false;
    board.ConnectedList[a].Append(b);
    board.ConnectedList[b].Append(a);
    return true;
}

void TakeBack(SolverBoard& board, const LaidBridges& laid) {
    ChangeNeed(board, laid.a, laid.bridges);
    ChangeNeed(board, laid.b, laid.bridges);
    if (laid.joined) {
        board.ConnectedList[laid.a].Remove(laid.b);
        board.ConnectedList[laid.b].Remove(laid.a);
    }
    if (laid.crossed) SetMarksBetween(board, laid.a, laid.b, Cross::Free, Cross::Free);
    if (laid.link != 0) board.LinkList.SetState(laid.link, laid.linkState);
    board.BridgesLaid -= laid.bridges;
}

}  // namespace

void ConnectIslands(SolverBoard& board, Rule rule, CellNumber a, CellNumber b, int n) {
    LaidBridges laid;
    laid.rule = rule;
    laid.a = static_cast<std::uint16_t>(a);
    laid.b = static_cast<std::uint16_t>(b);
    laid.bridges = static_cast<std::uint8_t>(n);
    laid.link = static_cast<std::uint16_t>(board.LinkList.Find(a, b));
    if (laid.link != 0) laid.linkState = board.LinkList[laid.link].state;
    ChangeNeed(board, a, -n);
    ChangeNeed(board, b, -n);
    laid.joined = Join(board, a, b);
    laid.crossed = SetMarksBetween(board, a, b, Cross::H, Cross::V);
    RefreshStaleLists(board);
    ++board.ConnectCount;
    UseLink(board, a, b, n);
    board.laid.push_back(laid);
}

void TakeBackBridges(SolverBoard& board, std::size_t kept) {
    while (board.laid.size() > kept) {
        TakeBack(board, board.laid.back());
        board.laid.pop_back();
    }
    RefreshStaleLists(board);
}

}  // namespace tidewalk
