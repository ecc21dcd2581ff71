// SPDX-License-Identifier: MIT
#include "solver/status_list.h"

#include "model/numbers.h"
#include "solver/neighbours.h"

namespace tidewalk {

namespace {

void AddMove(StatusLine& line, CellNumber neighbour, int bridges) {
    line.moves[static_cast<std::size_t>(line.moveCount++)] = {neighbour, bridges};
}

StatusLine StatusOf(const SolverBoard& board, CellNumber island) {
    StatusLine line;
    line.island = island;
    line.need = board.IslandGrid[island];
    line.neighbours = board.OpenNeighbours[island].Count();
    for (const CellNumber neighbour : board.OpenNeighbours[island]) {
        AddMove(line, neighbour, 1);
        if (line.need >= 2 && GetLinkValue(board, island, neighbour) == 2) AddMove(line, neighbour, 2);
    }
    return line;
}

}  // namespace

std::string Text(const StatusLine& line) {
    std::string text =
        NumText(line.need) + " " + Format(line.neighbours, "00") + " 000 000 " + Format(line.island, "000") + " ";
    for (int i = line.firstMove; i < line.moveCount; ++i) {
        const Move& move = line.moves[static_cast<std::size_t>(i)];
        text += Format(move.neighbour, "000") + "*" + NumText(move.bridges) + " ";
    }
    return text;
}

std::optional<StatusLine> FirstStatusLine(const SolverBoard& board) {
    // Need, number of neighbours and id in one number that sorts as the lines do.
    constexpr int kNeedWeight = 10000;
    constexpr int kNeighbourWeight = 1000;
    int best = 0;
    const CellSet& islands = board.sights.islands;
    for (CellNumber id = islands.First(); id != 0; id = islands.NextFrom(id + 1)) {
        const int need = board.IslandGrid[id];
        if (need <= 0) continue;
        const int key = need * kNeedWeight + board.OpenNeighbours[id].Count() * kNeighbourWeight + id;
        if (best == 0 || key < best) best = key;
    }
    if (best == 0) return std::nullopt;
    return StatusOf(board, best % kNeighbourWeight);
}

std::vector<std::string> StatusLines(const SolverBoard& board) {
    std::vector<std::string> lines;
    const CellSet& islands = board.sights.islands;
    for (CellNumber id = islands.First(); id != 0; id = islands.NextFrom(id + 1)) {
        if (board.IslandGrid[id] > 0) lines.push_back(Text(StatusOf(board, id)));
    }
    return lines;
}

std::vector<std::string> ChoicePointLines(const SolverBoard& board) {
    std::vector<std::string> lines;
    for (int i = board.BranchCount(); i > 0; --i)
        lines.push_back(Format(i, "000") + " " + Text(board.choicePoints[static_cast<std::size_t>(i - 1)].line));
    return lines;
}

}  // namespace tidewalk
