// SPDX-License-Identifier: MIT
#include "generator/create_puzzle.h"

#include <algorithm>

#include "board/layout.h"
#include "generator/grow.h"
#include "model/job.h"
#include "model/numbers.h"
#include "solver/solve_puzzle.h"

namespace tidewalk {

namespace {

constexpr int kAttempts = 5;

/// The trial search gives up a layout after so many trials; that it will ever end is not certain otherwise.
constexpr int kTrialLimit = 10000;

/// Bounds the trial search for as long as it lives.
class BoundedTrials {
 public:
    explicit BoundedTrials(Game& game) : game_(game), before_(game.TrialLimit) { game_.TrialLimit = kTrialLimit; }
    ~BoundedTrials() { game_.TrialLimit = before_; }
    BoundedTrials(const BoundedTrials&) = delete;
    BoundedTrials& operator=(const BoundedTrials&) = delete;

 private:
    Game& game_;
    int before_;
};

/// True when the grids are no longer the job's, or nobody will ask for them again.
bool MustLeaveAtOnce(const Game& game) {
    return game.ending || JobIsSuperseded(game);
}

void PlaceSeed(Game& game) {
    game.IslandGrid.FillBoard(kOpenWater);
    game.GivenGrid.FillBoard(-1);
    game.CrossGrid.Fill(Cross::Free);
    game.BridgeTotals.Fill(0);
    game.liveIslands.Clear();
    // The seed is the cell whose id was drawn among the numbers of the rows, wherever that id lies.
    game.GrowFromCell = std::min(game.random.Draw(game.Rows) + 1, game.Rows);
    PlaceIsland(game, game.GrowFromCell);
}

/// Grows a layout from one island. False when it was left half-grown.
bool GrowLayout(Game& game) {
    constexpr float kFillTarget = 100;
    PlaceSeed(game);
    int count = 0;
    while (count != -1) {
        GrowStep(game, count, kFillTarget);
        PollEvents(game);
        if (MustLeaveAtOnce(game)) return false;
    }
    return true;
}

void TakeNumbers(Game& game) {
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const auto [row, col] = game.PlaceOf(id);
        if (game.BridgeTotals(row, col) > 0) game.GivenGrid(row, col) = game.BridgeTotals(row, col);
    }
    game.List1.Clear();
    game.List2.Clear();
}

/// The `i`-th cell of a row.
int& InRow(Game& game, int row, int i) {
    return game.GivenGrid(row, i);
}

/// The `i`-th cell of a column.
int& InColumn(Game& game, int col, int i) {
    return game.GivenGrid(i, col);
}

/// Moves the line `inner` on to the border line, if that holds no island. Nothing can cross a line without islands at
/// the border, so every bridge stays straight.
void PullIn(Game& game, int& (*cell)(Game&, int, int), int border, int inner, int length) {
    for (int i = 1; i <= length; ++i) {
        if (cell(game, border, i) > 0) return;
    }
    for (int i = 1; i <= length; ++i) {
        cell(game, border, i) = cell(game, inner, i);
        cell(game, inner, i) = -1;
    }
}

/// Pulls empty border lines in by one line; where two lines are empty, one stays so.
void PullInBorders(Game& game) {
    PullIn(game, InColumn, 1, 2, game.Rows);
    PullIn(game, InColumn, game.Cols, game.Cols - 1, game.Rows);
    PullIn(game, InRow, 1, 2, game.Cols);
    PullIn(game, InRow, game.Rows, game.Rows - 1, game.Cols);
}

/// Solves the layout in `GivenGrid`; false when the solver fails.
bool Solve(Game& game, int& grade) {
    constexpr double kCellsPerAllowance = 10;
    RestoreIslands(game);
    game.BusyFlag = YesValue;
    const BoundedTrials bounded(game);
    return SolvePuzzle(game, RoundHalfEven(game.CellCount / kCellsPerAllowance), grade) == 0;
}

/// Grows layouts until the solver has solved one. False when there is no more time or patience.
bool MakeSolvedLayout(Game& game, int& grade) {
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        PollEvents(game);
        if (MustLeaveAtOnce(game)) return false;
        game.window.SetPointer(Pointer::Busy);
        // A layout is grown even if the first look finds the job cancelled: a batch records one for every puzzle.
        if (attempt > 1 && CancelRequested(game)) return false;
        if (!GrowLayout(game)) return false;
        TakeNumbers(game);
        PullInBorders(game);
        if (CancelRequested(game)) return false;
        if (Solve(game, grade)) return true;
        if (MustLeaveAtOnce(game)) return false;
    }
    return false;
}

}  // namespace

void CreatePuzzle(Game& game, int& grade, int& failed) {
    game.BusyFlag = YesValue;
    game.CancelFlag = NoValue;
    LayoutNewBoard(game);
    failed = MakeSolvedLayout(game, grade) ? 0 : 1;
    if (failed == 1) game.BusyFlag = NoValue;
    if (MustLeaveAtOnce(game)) return;
    RestoreIslands(game);
    if (failed == 1) {
        game.LinkList.Clear(game.Cols);
        return;
    }
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const auto [row, col] = game.PlaceOf(id);
        if (game.GivenGrid(row, col) > 0) game.GivenGrid(row, col) = -1;
    }
}

int DrawRandomSide(Game& game) {
    return game.random.Draw(kMaxSide - kMinSide) + kMinSide;
}

}  // namespace tidewalk
