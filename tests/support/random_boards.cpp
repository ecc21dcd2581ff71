// SPDX-License-Identifier: MIT
#include "support/random_boards.h"

#include <vector>

namespace tidewalk::test {

namespace {

constexpr int kWater = -1;

/// Draws a bridge from the island at `id` towards higher ids by `step` to the next island, unless one runs across.
void DrawBridge(const Puzzle& puzzle, std::vector<int>& totals, std::vector<bool>& taken, CellNumber id, int step,
                int bridges) {
    const CellNumber last = step == 1 ? puzzle.CellRow(id) * puzzle.Cols : puzzle.CellCount();
    CellNumber end = id + step;
    while (end <= last && totals[end] == kWater && !taken[end])
        end += step;
    if (end > last || totals[end] == kWater) return;
    for (CellNumber cell = id + step; cell < end; cell += step)
        taken[cell] = true;
    totals[id] += bridges;
    totals[end] += bridges;
}

}  // namespace

Puzzle MakeRandomPuzzle(std::mt19937& random, BoardSize size, int spacing, bool spoil) {
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    Puzzle puzzle(size);
    std::vector<int> totals(static_cast<std::size_t>(puzzle.CellCount()) + 1, kWater);
    std::vector<bool> taken(totals.size());
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (draw(spacing) == 0) totals[id] = 0;
    }
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (totals[id] == kWater) continue;
        for (const int step : {1, size.cols}) {
            if (draw(4) != 0) DrawBridge(puzzle, totals, taken, id, step, 1 + draw(2));
        }
    }
    std::vector<CellNumber> islands;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (totals[id] > 0) islands.push_back(id);
    }
    if (spoil && !islands.empty()) totals[islands[draw(static_cast<int>(islands.size()))]] += 1;
    for (const CellNumber id : islands)
        puzzle.SetIsland(id, totals[id]);
    return puzzle;
}

}  // namespace tidewalk::test
