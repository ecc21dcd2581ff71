// SPDX-License-Identifier: MIT
#include "solver/valid_solution.h"

#include <algorithm>

namespace tidewalk {

namespace {

/// How many bridges a link carries.
int BridgesOf(const Link& link) {
    return 2 - link.state;
}

/// Which cells are taken by bridges, and which islands hang together.
class LaidBoard {
 public:
    explicit LaidBoard(const Game& game) : game_(game) {
        for (CellNumber id = 0; id <= kMaxCells; ++id)
            group_[id] = id;
    }

    /// Lays the link's bridges; false when they do not lie between two islands of one row or column with nothing but
    /// free water between them.
    bool Lay(const Link& link) {
        const CellNumber from = std::min(link.first, link.second);
        const CellNumber to = std::max(link.first, link.second);
        if (from < 1 || to > game_.CellCount || from == to) return false;
        const bool sameRow = game_.CellRow[from] == game_.CellRow[to];
        if (!sameRow && game_.CellCol[from] != game_.CellCol[to]) return false;
        if (game_.IslandAt(from) < 1 || game_.IslandAt(to) < 1) return false;
        for (CellNumber id = from + Step(sameRow); id < to; id += Step(sameRow)) {
            if (game_.IslandAt(id) > 0 || taken_.Contains(id)) return false;
            taken_.Insert(id);
        }
        group_[GroupOf(from)] = GroupOf(to);
        return true;
    }

    bool IsOneGroup() {
        CellNumber first = 0;
        for (CellNumber id = 1; id <= game_.CellCount; ++id) {
            if (game_.IslandAt(id) < 1) continue;
            if (first == 0) first = id;
            if (GroupOf(id) != GroupOf(first)) return false;
        }
        return true;
    }

 private:
    int Step(bool sameRow) const { return sameRow ? 1 : game_.Cols; }

    CellNumber GroupOf(CellNumber id) {
        while (group_[id] != id)
            id = group_[id] = group_[group_[id]];
        return id;
    }

    const Game& game_;
    CellSet taken_;
    PerCell<CellNumber> group_;
};

}  // namespace

int CheckLinkTotals(const Game& game) {
    PerCell<int> totals;
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link& link = game.LinkList[i];
        totals[link.first] += BridgesOf(link);
        totals[link.second] += BridgesOf(link);
    }
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const int number = game.IslandAt(id);
        if (number > 0 && number != totals[id]) return YesValue;
    }
    return NoValue;
}

bool IsValidSolution(const Game& game) {
    if (CheckLinkTotals(game) == YesValue) return false;
    LaidBoard board(game);
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link& link = game.LinkList[i];
        if (BridgesOf(link) > 0 && !board.Lay(link)) return false;
    }
    return board.IsOneGroup();
}

}  // namespace tidewalk
