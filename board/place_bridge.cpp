// SPDX-License-Identifier: MIT
#include "board/place_bridge.h"

#include <algorithm>

namespace tidewalk {

namespace {

bool CanBeJoined(const Puzzle& puzzle, CellNumber a, CellNumber b) {
    // A cell of no board may stand for nothing selected. A bridge from an island to itself could not be seen, but the
    // check would count it.
    if (a < 1 || b < 1 || a == b || puzzle.IslandAt(a) < 1 || puzzle.IslandAt(b) < 1) return false;
    return puzzle.CellRow(a) == puzzle.CellRow(b) || puzzle.CellCol(a) == puzzle.CellCol(b);
}

}  // namespace

int PairState(const Board& board, CellNumber a, CellNumber b) {
    return board.Marks(a, b) ? kMarked : board.BridgeState(a, b);
}

void SetPairState(Board& board, CellNumber a, CellNumber b, int state) {
    board.BridgeState.Set(a, b, std::max(state, 0));
    board.Marks.Set(a, b, state == kMarked);
}

void PlaceBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b, int want) {
    if (!CanBeJoined(board.puzzle, a, b)) return;
    const int state = board.BridgeState(a, b);
    int target = state == 0 ? 1 : want;
    if (state == 1 || mode == PlaceMode::Double) target = 2;
    if (state == 2 && mode == PlaceMode::Cycle) target = 0;
    SetPairState(board, a, b, target);
}

void MakeMove(Board& board, CellNumber a, CellNumber b, int state) {
    const UndoRecord before{a, b, PairState(board, a, b)};
    SetPairState(board, a, b, state);
    board.history.Push({before, state});
}

void LayBridge(Board& board, PlaceMode mode, CellNumber a, CellNumber b) {
    const UndoRecord before{a, b, PairState(board, a, b)};
    PlaceBridge(board, mode, a, b, 1);
    board.history.Push({before, PairState(board, a, b)});
}

void ClearOrMark(Board& board, CellNumber a, CellNumber b) {
    const int before = PairState(board, a, b);
    const bool marks = before == 0 && CanBeJoined(board.puzzle, a, b) && SeeEachOther(board.puzzle, a, b);
    const int after = marks ? kMarked : before == kMarked ? kUnmarked : 0;
    SetPairState(board, a, b, after);
    board.history.Push({{a, b, marks ? kUnmarked : before}, after});
}

std::optional<PairMarks::Pair> BridgeOver(const Board& board, CellPlace cell) {
    for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders()) {
        const CellPlace from = board.puzzle.PlaceOf(a);
        const CellPlace to = board.puzzle.PlaceOf(b);
        const bool alongRow = cell.row == from.row && cell.row == to.row && from.col < cell.col && cell.col < to.col;
        const bool alongCol = cell.col == from.col && cell.col == to.col && from.row < cell.row && cell.row < to.row;
        if (alongRow || alongCol) return PairMarks::Pair(a, b);
    }
    return std::nullopt;
}

std::vector<PairMarks::Pair> PairsInSight(const Puzzle& puzzle) {
    std::vector<PairMarks::Pair> pairs;
    const auto addFirst = [&](CellNumber from, int step, int count) {
        for (CellNumber id = from + step; count > 0; --count, id += step) {
            if (puzzle.IslandAt(id) > 0) return pairs.emplace_back(from, id), void();
        }
    };
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (puzzle.IslandAt(id) <= 0) continue;
        addFirst(id, 1, puzzle.Cols - puzzle.CellCol(id));
        addFirst(id, puzzle.Cols, puzzle.Rows - puzzle.CellRow(id));
    }
    return pairs;
}

bool SeeEachOther(const Puzzle& puzzle, CellNumber a, CellNumber b) {
    const CellPlace from = puzzle.PlaceOf(std::min(a, b));
    const CellPlace to = puzzle.PlaceOf(std::max(a, b));
    if ((from.row == to.row) == (from.col == to.col)) return false;
    const int step = from.row == to.row ? 1 : puzzle.Cols;
    for (CellNumber id = std::min(a, b) + step; id < std::max(a, b); id += step) {
        if (puzzle.IslandAt(id) > 0) return false;
    }
    return true;
}

}  // namespace tidewalk
