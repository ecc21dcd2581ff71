// SPDX-License-Identifier: MIT
#include "solver/valid_solution.h"

#include <algorithm>

#include "model/cell_set.h"

namespace tidewalk {

namespace {

/// Which cells are taken by bridges, and which islands hang together.
class LaidBoard {
 public:
    explicit LaidBoard(const Puzzle& puzzle) : puzzle_(puzzle) {
        for (CellNumber id = 0; id <= kMaxCells; ++id)
            group_[id] = id;
    }

    /// Lays the link's bridges; false when they do not lie between two islands of one row or column with nothing but
    /// free water between them.
    bool Lay(const Link& link) {
        const CellNumber from = std::min(link.first, link.second);
        const CellNumber to = std::max(link.first, link.second);
        if (from < 1 || to > puzzle_.CellCount() || from == to) return false;
        const bool sameRow = puzzle_.CellRow(from) == puzzle_.CellRow(to);
        if (!sameRow && puzzle_.CellCol(from) != puzzle_.CellCol(to)) return false;
        if (puzzle_.IslandAt(from) < 1 || puzzle_.IslandAt(to) < 1) return false;
        for (CellNumber id = from + Step(sameRow); id < to; id += Step(sameRow)) {
            if (puzzle_.IslandAt(id) > 0 || taken_.Contains(id)) return false;
            taken_.Insert(id);
        }
        group_[GroupOf(from)] = GroupOf(to);
        return true;
    }

    bool IsOneGroup() {
        CellNumber first = 0;
        for (CellNumber id = 1; id <= puzzle_.CellCount(); ++id) {
            if (puzzle_.IslandAt(id) < 1) continue;
            if (first == 0) first = id;
            if (GroupOf(id) != GroupOf(first)) return false;
        }
        return true;
    }

 private:
    int Step(bool sameRow) const { return sameRow ? 1 : puzzle_.Cols; }

    CellNumber GroupOf(CellNumber id) {
        while (group_[id] != id)
            id = group_[id] = group_[group_[id]];
        return id;
    }

    const Puzzle& puzzle_;
    CellSet taken_;
    PerCell<CellNumber> group_;
};

}  // namespace

bool CheckLinkTotals(const Puzzle& puzzle) {
    PerCell<int> totals;
    for (const Link& link : puzzle.LinkList) {
        totals[link.first] += link.Bridges();
        totals[link.second] += link.Bridges();
    }
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const int number = puzzle.IslandAt(id);
        if (number > 0 && number != totals[id]) return false;
    }
    return true;
}

bool IsValidSolution(const Puzzle& puzzle) {
    if (!CheckLinkTotals(puzzle)) return false;
    LaidBoard board(puzzle);
    for (const Link& link : puzzle.LinkList) {
        if (link.Bridges() > 0 && !board.Lay(link)) return false;
    }
    return board.IsOneGroup();
}

}  // namespace tidewalk
