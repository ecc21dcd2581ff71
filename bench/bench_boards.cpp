// SPDX-License-Identifier: MIT
#include "bench/bench_boards.h"

#include <vector>

namespace tidewalk::bench {

namespace {

constexpr int kSpacing = 3;  ///< about every third cell holds an island

/// Draws bridges from `id` by `step` to the next island before `last`, unless another bridge runs across.
void DrawBridge(std::vector<int>& totals, std::vector<bool>& taken, int id, int step, int last, int bridges) {
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

void MakeDenseBoard(Game& game, std::mt19937& random, int side) {
    game.Rows = game.Cols = side;
    NumberCells(game);
    std::vector<int> totals(game.CellCount + 1, -1);
    std::vector<bool> taken(game.CellCount + 1);
    for (int id = 1; id <= game.CellCount; ++id) {
        if (random() % kSpacing == 0) totals[id] = 0;
    }
    for (int id = 1; id <= game.CellCount; ++id) {
        if (totals[id] < 0) continue;
        const int rowEnd = game.CellRow[id] * side;
        if (random() % 8 != 0) DrawBridge(totals, taken, id, 1, rowEnd, 1 + static_cast<int>(random() % 2));
        if (random() % 8 != 0) DrawBridge(totals, taken, id, side, game.CellCount, 1 + static_cast<int>(random() % 2));
    }
    game.GivenGrid.FillBoard(-1);
    for (int id = 1; id <= game.CellCount; ++id) {
        if (totals[id] > 0) game.GivenGrid(game.CellRow[id], game.CellCol[id]) = totals[id];
    }
}

}  // namespace tidewalk::bench
