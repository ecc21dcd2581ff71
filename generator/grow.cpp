// SPDX-License-Identifier: MIT
#include "generator/grow.h"

#include <array>
#include <limits>

#include "solver/connect_islands.h"

namespace tidewalk {

namespace {

constexpr int kNoKey = std::numeric_limits<int>::max();

/// A step to the next cell. The order is that in which a bridge looks for its end.
constexpr std::array<CellPlace, 4> kSteps{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};

/// The random part of a key, 1..50.
int RandomKey(Game& game) {
    constexpr int kRandomKeys = 50;
    return game.random.Draw(kRandomKeys) + 1;
}

/// The three last digits of a key: the cell that it ranks. Keys compare as their digits do, and the smallest one wins.
constexpr int kIdPlace = 1000;

/// In front of a key's two random digits.
constexpr int kDiagonalPlace = 100 * kIdPlace;

/// True where a bridge may pass and another island may stand.
bool IsFree(const Game& game, int row, int col) {
    return game.OnBoard(row, col) && game.IslandGrid(row, col) == kOpenWater && game.CrossGrid(row, col) == Cross::Free;
}

/// A random island that can still grow bridges, or 0 when none is left.
CellNumber DrawLiveIsland(Game& game) {
    int smallest = kNoKey;
    for (CellNumber id = game.liveIslands.First(); id != 0; id = game.liveIslands.NextFrom(id + 1)) {
        smallest = std::min(smallest, RandomKey(game) * kIdPlace + id);
    }
    return smallest == kNoKey ? 0 : smallest % kIdPlace;
}

/// One bridge or two, as likely as each other.
int DrawBridgeCount(Game& game) {
    constexpr int kChoices = 10;
    constexpr int kLastSingle = 4;
    return game.random.Draw(kChoices) > kLastSingle ? 2 : 1;
}

int& BridgeTotal(Game& game, CellNumber id) {
    return game.BridgeTotals(game.CellRow[id], game.CellCol[id]);
}

}  // namespace

void PlaceIsland(Game& game, CellNumber id) {
    game.IslandAt(id) = kPlacedIsland;
    game.liveIslands.Insert(id);
    BlockNeighbours(game, id);
}

void GrowStep(Game& game, int& count, float fillTarget) {
    CellNumber target = 0;
    while (target == 0) {
        const CellNumber cell = game.GrowFromCell;
        if (cell == 0) {
            count = -1;
            return;
        }
        target = PickBridgeTarget(game, cell);
        if (target != 0) break;
        game.CrossGrid(game.CellRow[cell], game.CellCol[cell]) = Cross::X;
        game.liveIslands.Erase(cell);
        game.GrowFromCell = DrawLiveIsland(game);
    }
    const CellNumber cell = game.GrowFromCell;
    const int bridges = DrawBridgeCount(game);
    MarkCrossed(game, cell, target);
    BridgeTotal(game, cell) += bridges;
    BridgeTotal(game, target) += bridges;
    PlaceIsland(game, target);
    ++count;
    const float percent = static_cast<float>(count) * 100 / static_cast<float>(game.CellCount);
    if (percent >= fillTarget) {
        count = -1;
    } else {
        game.GrowFromCell = target;
    }
}

CellNumber PickBridgeTarget(Game& game, CellNumber cell) {
    const CellPlace from = game.PlaceOf(cell);
    int smallest = kNoKey;
    for (const CellPlace step : kSteps) {
        // A bridge runs past the island on this side.
        if (game.CrossGrid(from.row + step.row, from.col + step.col) != Cross::Free) continue;
        int row = from.row + 2 * step.row;
        int col = from.col + 2 * step.col;
        for (; IsFree(game, row, col); row += step.row, col += step.col) {
            const CellNumber id = game.CellId(row, col);
            const int key = CountDiagonalIslands(game, id) * kDiagonalPlace + RandomKey(game) * kIdPlace + id;
            smallest = std::min(smallest, key);
        }
    }
    return smallest == kNoKey ? 0 : smallest % kIdPlace;
}

int CountDiagonalIslands(const Game& game, CellNumber cell) {
    const auto [row, col] = game.PlaceOf(cell);
    const auto isIsland = [&](int r, int c) { return game.OnBoard(r, c) && game.IslandGrid(r, c) > 0; };
    return isIsland(row - 1, col - 1) + isIsland(row - 1, col + 1) + isIsland(row + 1, col - 1) +
           isIsland(row + 1, col + 1);
}

void BlockNeighbours(Game& game, CellNumber cell) {
    const auto [row, col] = game.PlaceOf(cell);
    for (const CellPlace step : kSteps) {
        const int r = row + step.row;
        const int c = col + step.col;
        if (game.OnBoard(r, c)) game.IslandGrid(r, c) = kBlockedWater;
    }
}

}  // namespace tidewalk
