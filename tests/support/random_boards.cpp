// SPDX-License-Identifier: MIT
#include "support/random_boards.h"

#include <algorithm>
#include <vector>

namespace tidewalk::test {

namespace {

/// Draws a bridge from the island at `id` towards higher ids by `step` to the next island, unless one runs across.
void DrawBridge(Game& game, std::vector<int>& totals, std::vector<bool>& taken, int id, int step, int bridges) {
    const int last = step == 1 ? game.CellRow[id] * game.Cols : game.CellCount;
    int end = id + step;
    while (end <= last && totals[end] < 0 && !taken[end])
        end += step;
    if (end > last || totals[end] < 0) return;
    for (int cell = id + step; cell < end; cell += step)
        taken[cell] = true;
    totals[id] += bridges;
    totals[end] += bridges;
}

}  // namespace

void MakeRandomBoard(Game& game, std::mt19937& random, int rows, int cols, int spacing, bool spoil) {
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    game.Rows = rows;
    game.Cols = cols;
    NumberCells(game);
    std::vector<int> totals(game.CellCount + 1, -1);
    std::vector<bool> taken(game.CellCount + 1);
    for (int id = 1; id <= game.CellCount; ++id) {
        if (draw(spacing) == 0) totals[id] = 0;
    }
    for (int id = 1; id <= game.CellCount; ++id) {
        if (totals[id] < 0) continue;
        for (const int step : {1, cols}) {
            if (draw(4) != 0) DrawBridge(game, totals, taken, id, step, 1 + draw(2));
        }
    }
    game.IslandGrid.FillBoard(-1);
    game.GivenGrid.FillBoard(-1);
    std::vector<int> islands;
    for (int id = 1; id <= game.CellCount; ++id) {
        if (totals[id] > 0) islands.push_back(id);
    }
    if (spoil && !islands.empty()) totals[islands[draw(static_cast<int>(islands.size()))]] += 1;
    for (const int id : islands) {
        game.IslandAt(id) = totals[id];
        game.GivenGrid(game.CellRow[id], game.CellCol[id]) = totals[id];
    }
}

}  // namespace tidewalk::test
