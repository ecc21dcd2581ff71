// SPDX-License-Identifier: MIT
#include "board/check_bridges.h"

#include "model/numbers.h"

namespace tidewalk {

namespace {

std::string CountLine(CellPlace place, int number, int bridges) {
    return Format(place.row, "00") + " " + Format(place.col, "00") + " " + Format(number, "000") +
           " links=" + Format(bridges, "00");
}

}  // namespace

BridgeCheck CheckBridgeCounts(const Board& board) {
    BridgeCheck check;
    const Puzzle& puzzle = board.puzzle;
    for (CellNumber id = 1; id <= puzzle.CellCount() && !check.wrong; ++id) {
        const int number = puzzle.IslandAt(id);
        if (number <= 0) continue;
        const int bridges = board.BridgeState.CountAt(id);
        check.lines.push_back(CountLine(puzzle.PlaceOf(id), number, bridges));
        if (bridges != number) check.wrong = puzzle.PlaceOf(id);
    }
    return check;
}

}  // namespace tidewalk
