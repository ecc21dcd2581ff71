// SPDX-License-Identifier: MIT
#include "board/check_bridges.h"

#include "board/mistakes.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

std::string CountLine(CellPlace place, int number, int bridges) {
    return Format(place.row, "00") + " " + Format(place.col, "00") + " " + Format(number, "000") +
           " links=" + Format(bridges, "00");
}

}  // namespace

std::optional<BoardFault> FaultBeyondNumbers(const Board& board) {
    const Mistakes mistakes = FindMistakes(board.puzzle, board.BridgeState);
    const auto fault = [&](const std::vector<CellNumber>& cells, const char* text) {
        return BoardFault{board.puzzle.PlaceOf(cells.front()), text};
    };
    if (!mistakes.runOver.empty()) return fault(mistakes.runOver, "a bridge runs over an island");
    if (!mistakes.crossings.empty()) return fault(mistakes.crossings, "bridges cross");
    if (!mistakes.closed.empty()) return fault(mistakes.closed, "the islands are not one group");
    return std::nullopt;
}

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
