// SPDX-License-Identifier: MIT
#include "solver/status_list.h"

#include "model/numbers.h"
#include "solver/neighbours.h"

namespace tidewalk {

namespace {

const NeighbourList& OpenNeighboursOf(const Game& game, CellNumber island) {
    return game.OpenNeighbours(game.CellRow[island], game.CellCol[island]);
}

void AddMove(StatusLine& line, CellNumber neighbour, int bridges) {
    line.moves[static_cast<std::size_t>(line.moveCount++)] = {neighbour, bridges};
}

StatusLine StatusOf(const Game& game, CellNumber island) {
    StatusLine line;
    line.island = island;
    line.need = game.IslandAt(island);
    line.neighbours = OpenNeighboursOf(game, island).Count();
    for (const CellNumber neighbour : OpenNeighboursOf(game, island)) {
        AddMove(line, neighbour, 1);
        if (line.need >= 2 && GetLinkValue(game, island, neighbour) == 2) AddMove(line, neighbour, 2);
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

std::optional<StatusLine> FirstStatusLine(const Game& game) {
    // Need, number of neighbours and id in one number that sorts as the lines do.
    constexpr int kNeedWeight = 10000;
    constexpr int kNeighbourWeight = 1000;
    int best = 0;
    const CellSet& islands = game.sights.islands;
    for (CellNumber id = islands.First(); id != 0; id = islands.NextFrom(id + 1)) {
        const int need = game.IslandAt(id);
        if (need <= 0) continue;
        const int key = need * kNeedWeight + OpenNeighboursOf(game, id).Count() * kNeighbourWeight + id;
        if (best == 0 || key < best) best = key;
    }
    if (best == 0) return std::nullopt;
    return StatusOf(game, best % kNeighbourWeight);
}

void ShowStatusList(Game& game) {
    game.List1.Clear();
    const CellSet& islands = game.sights.islands;
    for (CellNumber id = islands.First(); id != 0; id = islands.NextFrom(id + 1)) {
        if (game.IslandAt(id) > 0) game.List1.Add(Text(StatusOf(game, id)));
    }
}

}  // namespace tidewalk
