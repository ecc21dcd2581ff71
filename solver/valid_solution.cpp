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

/// Tries to make stored bridges whole with bridges between islands that touch each other.
class TouchingBridges {
 public:
    explicit TouchingBridges(const Puzzle& puzzle) : puzzle_(puzzle) {
        for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
            missing_[id] = puzzle.IslandAt(id);
        for (const Link& link : puzzle.LinkList) {
            missing_[link.first] -= link.Bridges();
            missing_[link.second] -= link.Bridges();
        }
    }

    /// True when some choice of such bridges gives a valid solution.
    bool MakeWhole() { return ChooseFrom(1); }

 private:
    /// Chooses the bridges to the right of and below each island from `id` on, in board order: those to its left and
    /// above it are chosen then.
    bool ChooseFrom(CellNumber id) {
        while (id <= puzzle_.CellCount() && (puzzle_.IslandAt(id) == 0 || missing_[id] == 0))
            ++id;
        if (id > puzzle_.CellCount()) return IsValidSolution(puzzle_);
        const CellNumber right = puzzle_.CellCol(id) < puzzle_.Cols ? id + 1 : 0;
        const CellNumber below = puzzle_.CellRow(id) < puzzle_.Rows ? id + puzzle_.Cols : 0;
        for (int toRight = 0; toRight <= 2 && steps_ > 0; ++toRight) {
            --steps_;
            const int down = missing_[id] - toRight;
            if (!CanTake(right, toRight) || !CanTake(below, down)) continue;
            Lay(id, right, toRight);
            Lay(id, below, down);
            if (ChooseFrom(id + 1)) return true;
            Lay(id, below, -down);
            Lay(id, right, -toRight);
        }
        return false;
    }

    bool CanTake(CellNumber island, int bridges) const {
        return bridges == 0 || (bridges > 0 && bridges <= 2 && island != 0 && missing_[island] >= bridges);
    }

    /// Lays so many bridges, or takes those laid last away again.
    void Lay(CellNumber from, CellNumber to, int bridges) {
        if (bridges == 0) return;
        missing_[from] -= bridges;
        missing_[to] -= bridges;
        if (bridges > 0) {
            puzzle_.LinkList.push_back(MakeLink(from, to, 2 - bridges));
        } else {
            puzzle_.LinkList.pop_back();
        }
    }

    Puzzle puzzle_;
    PerCell<int> missing_;
    int steps_ = 100000;  ///< a board full of islands has more ways than anybody waits for
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

bool LacksOnlyTouchingBridges(const Puzzle& puzzle) {
    return !IsValidSolution(puzzle) && TouchingBridges(puzzle).MakeWhole();
}

}  // namespace tidewalk
