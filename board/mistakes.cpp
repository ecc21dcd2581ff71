// SPDX-License-Identifier: MIT
#include "board/mistakes.h"

#include <algorithm>
#include <map>

#include "model/grid.h"

namespace tidewalk {

namespace {

/// The bridges on a board, cell by cell and group by group.
class BridgedBoard {
 public:
    BridgedBoard(const Puzzle& puzzle, const BridgeTable& bridges) : puzzle_(puzzle) {
        for (CellNumber id = 0; id <= kMaxCells; ++id)
            group_[id] = id;
        for (const auto& [a, b, count] : bridges.InBothOrders()) {
            total_[a] += count;
            if (a > b) continue;
            group_[GroupOf(a)] = GroupOf(b);
            const int step = puzzle.CellRow(a) == puzzle.CellRow(b) ? 1 : puzzle.Cols;
            for (CellNumber id = a + step; id < b; id += step)
                ++bridgesOver_[id];
        }
    }

    bool IsIsland(CellNumber id) const { return puzzle_.IslandAt(id) > 0; }
    int Missing(CellNumber island) const { return puzzle_.IslandAt(island) - total_[island]; }

    /// How many pairs have bridges that run over the cell.
    int BridgesOver(CellNumber id) const { return bridgesOver_[id]; }

    /// The islands of groups in which none misses a bridge, when there is more than one group.
    std::vector<CellNumber> ClosedGroups() {
        std::map<CellNumber, bool> isOpen;
        for (CellNumber id = 1; id <= puzzle_.CellCount(); ++id) {
            if (IsIsland(id)) isOpen[GroupOf(id)] |= Missing(id) > 0;
        }
        std::vector<CellNumber> closed;
        if (isOpen.size() < 2) return closed;
        for (CellNumber id = 1; id <= puzzle_.CellCount(); ++id) {
            if (IsIsland(id) && !isOpen[GroupOf(id)]) closed.push_back(id);
        }
        return closed;
    }

 private:
    CellNumber GroupOf(CellNumber id) {
        while (group_[id] != id)
            id = group_[id] = group_[group_[id]];
        return id;
    }

    const Puzzle& puzzle_;
    PerCell<int> total_;  ///< the bridges that end at a cell
    PerCell<int> bridgesOver_;
    PerCell<CellNumber> group_;
};

}  // namespace

Mistakes FindMistakes(const Puzzle& puzzle, const BridgeTable& bridges) {
    BridgedBoard board(puzzle, bridges);
    Mistakes mistakes;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const int over = board.BridgesOver(id);
        if (!board.IsIsland(id)) {
            if (over > 1) mistakes.crossings.push_back(id);
            continue;
        }
        if (over > 0) mistakes.runOver.push_back(id);
        if (board.Missing(id) < 0) mistakes.overfull.push_back(id);
    }
    mistakes.closed = board.ClosedGroups();
    return mistakes;
}

bool IsSolved(const Puzzle& puzzle, const BridgeTable& bridges) {
    if (puzzle.IslandCount() == 0) return false;
    BridgedBoard board(puzzle, bridges);
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const bool isIsland = board.IsIsland(id);
        if (isIsland && board.Missing(id) != 0) return false;
        if (board.BridgesOver(id) > (isIsland ? 0 : 1)) return false;
    }
    return board.ClosedGroups().empty();
}

}  // namespace tidewalk
