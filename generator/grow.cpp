// SPDX-License-Identifier: MIT
#include "generator/grow.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tidewalk {

namespace {

constexpr int kNoKey = std::numeric_limits<int>::max();

/// A step to the next cell. The order is that in which a bridge looks for its end.
constexpr std::array<CellPlace, 4> kSteps{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};

/// The random part of a key, 1..50.
int RandomKey(RandomSource& random) {
    constexpr int kRandomKeys = 50;
    return random.Draw(kRandomKeys) + 1;
}

/// The three last digits of a key: the cell that it ranks. Keys compare as their digits do, and the smallest one wins.
constexpr int kIdPlace = 1000;

/// In front of a key's two random digits.
constexpr int kDiagonalPlace = 100 * kIdPlace;

/// True where a bridge may pass and another island may stand. Off the board there is no open water.
bool IsFree(const GrowingLayout& layout, int row, int col) {
    return layout.IslandGrid(row, col) == kOpenWater && layout.CrossGrid(row, col) == Cross::Free;
}

int DiagonalIslands(const GrowingLayout& layout, int row, int col) {
    const auto isIsland = [&](int r, int c) { return layout.IslandGrid(r, c) > 0; };
    return isIsland(row - 1, col - 1) + isIsland(row - 1, col + 1) + isIsland(row + 1, col - 1) +
           isIsland(row + 1, col + 1);
}

/// A random island that can still grow bridges, or 0 when none is left.
CellNumber DrawLiveIsland(const GrowingLayout& layout, RandomSource& random) {
    int smallest = kNoKey;
    for (CellNumber id = layout.liveIslands.First(); id != 0; id = layout.liveIslands.NextFrom(id + 1)) {
        smallest = std::min(smallest, RandomKey(random) * kIdPlace + id);
    }
    return smallest == kNoKey ? 0 : smallest % kIdPlace;
}

/// One bridge or two, as likely as each other.
int DrawBridgeCount(RandomSource& random) {
    constexpr int kChoices = 10;
    constexpr int kLastSingle = 4;
    return random.Draw(kChoices) > kLastSingle ? 2 : 1;
}

/// Marks the cells strictly between two islands of one row or column.
void MarkCrossed(GrowingLayout& layout, CellNumber a, CellNumber b) {
    const CellPlace from = layout.PlaceOf(std::min(a, b));
    const CellPlace to = layout.PlaceOf(std::max(a, b));
    for (int col = from.col + 1; col < to.col; ++col)
        layout.CrossGrid(from.row, col) = Cross::H;
    for (int row = from.row + 1; row < to.row; ++row)
        layout.CrossGrid(row, from.col) = Cross::V;
}

int& BridgeTotal(GrowingLayout& layout, CellNumber id) {
    const auto [row, col] = layout.PlaceOf(id);
    return layout.BridgeTotals(row, col);
}

using Numbers = Grid<int>;

/// Takes the numbers of one line to the border line beside it, if that holds no island. Nothing can cross a line
/// without islands at the border, so every bridge stays straight.
void PullIn(Numbers& numbers, CellPlace border, CellPlace inner, CellPlace step, int length) {
    const auto at = [&](CellPlace line, int i) -> int& {
        return numbers(line.row + i * step.row, line.col + i * step.col);
    };
    for (int i = 0; i < length; ++i) {
        if (at(border, i) > 0) return;
    }
    for (int i = 0; i < length; ++i) {
        at(border, i) = at(inner, i);
        at(inner, i) = 0;
    }
}

}  // namespace

GrowingLayout::GrowingLayout(BoardSize size) : Rows(size.rows), Cols(size.cols) {
    for (int col = 1; col <= Cols; ++col) {
        for (int row = 1; row <= Rows; ++row)
            IslandGrid(row, col) = kOpenWater;
    }
}

void PlaceIsland(GrowingLayout& layout, CellNumber id) {
    const auto [row, col] = layout.PlaceOf(id);
    layout.IslandGrid(row, col) = kPlacedIsland;
    layout.liveIslands.Insert(id);
    BlockNeighbours(layout, id);
}

void GrowStep(GrowingLayout& layout, RandomSource& random, int& count, float fillTarget) {
    CellNumber target = 0;
    while (target == 0) {
        const CellNumber cell = layout.GrowFromCell;
        if (cell == 0) {
            count = -1;
            return;
        }
        target = PickBridgeTarget(layout, random, cell);
        if (target != 0) break;
        const auto [row, col] = layout.PlaceOf(cell);
        layout.CrossGrid(row, col) = Cross::X;
        layout.liveIslands.Erase(cell);
        layout.GrowFromCell = DrawLiveIsland(layout, random);
    }
    const CellNumber cell = layout.GrowFromCell;
    const int bridges = DrawBridgeCount(random);
    MarkCrossed(layout, cell, target);
    BridgeTotal(layout, cell) += bridges;
    BridgeTotal(layout, target) += bridges;
    PlaceIsland(layout, target);
    ++count;
    const float percent = static_cast<float>(count) * 100 / static_cast<float>(layout.CellCount());
    if (percent >= fillTarget) {
        count = -1;
    } else {
        layout.GrowFromCell = target;
    }
}

CellNumber PickBridgeTarget(const GrowingLayout& layout, RandomSource& random, CellNumber cell) {
    const CellPlace from = layout.PlaceOf(cell);
    int smallest = kNoKey;
    for (const CellPlace step : kSteps) {
        // A bridge runs past the island on this side.
        if (layout.CrossGrid(from.row + step.row, from.col + step.col) != Cross::Free) continue;
        int row = from.row + 2 * step.row;
        int col = from.col + 2 * step.col;
        for (; IsFree(layout, row, col); row += step.row, col += step.col) {
            const CellNumber id = layout.CellId(row, col);
            const int key = DiagonalIslands(layout, row, col) * kDiagonalPlace + RandomKey(random) * kIdPlace + id;
            smallest = std::min(smallest, key);
        }
    }
    return smallest == kNoKey ? 0 : smallest % kIdPlace;
}

int CountDiagonalIslands(const GrowingLayout& layout, CellNumber cell) {
    const auto [row, col] = layout.PlaceOf(cell);
    return DiagonalIslands(layout, row, col);
}

void BlockNeighbours(GrowingLayout& layout, CellNumber cell) {
    const auto [row, col] = layout.PlaceOf(cell);
    for (const CellPlace step : kSteps) {
        const int r = row + step.row;
        const int c = col + step.col;
        if (layout.OnBoard(r, c)) layout.IslandGrid(r, c) = kBlockedWater;
    }
}

Puzzle GrownPuzzle(const GrowingLayout& layout) {
    Numbers numbers = layout.BridgeTotals;
    constexpr CellPlace kDown{1, 0};
    constexpr CellPlace kRight{0, 1};
    PullIn(numbers, {1, 1}, {1, 2}, kDown, layout.Rows);
    PullIn(numbers, {1, layout.Cols}, {1, layout.Cols - 1}, kDown, layout.Rows);
    PullIn(numbers, {1, 1}, {2, 1}, kRight, layout.Cols);
    PullIn(numbers, {layout.Rows, 1}, {layout.Rows - 1, 1}, kRight, layout.Cols);
    Puzzle puzzle({layout.Rows, layout.Cols});
    for (int row = 1; row <= layout.Rows; ++row) {
        for (int col = 1; col <= layout.Cols; ++col)
            puzzle.SetIsland(puzzle.CellId(row, col), numbers(row, col));
    }
    return puzzle;
}

}  // namespace tidewalk
