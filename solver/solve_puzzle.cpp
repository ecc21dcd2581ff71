// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include "model/job.h"
#include "solver/contradictions.h"
#include "solver/neighbours.h"
#include "solver/rules.h"
#include "solver/status_list.h"
#include "solver/trial_search.h"

namespace tidewalk {

namespace {

/// Clears what an earlier solve left and builds the tables for the puzzle in `GivenGrid`.
void Prepare(Game& game) {
    RestoreIslands(game);
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        game.CrossGrid(game.CellRow[id], game.CellCol[id]) = Cross::Free;
        game.ConnectedList[id].Clear();
    }
    game.BridgesLaid = 0;
    game.BranchCount = 0;
    game.overdrawnLinks = 0;
    game.laid.clear();
    game.List2.Clear();
    BuildNeighbourLists(game);
    RefreshNeighbours(game);
}

bool IslandsNeedBridges(const Game& game) {
    return FirstStatusLine(game).has_value();
}

bool Solve(Game& game, int limit, int& trials) {
    if (Propagate(game) != Propagation::Settled) return false;
    if (!IslandsNeedBridges(game)) return true;
    if (limit < 1) return false;
    return TrialSearch(game, trials) == 0 && !IslandsNeedBridges(game);
}

}  // namespace

void RestoreIslands(Game& game) {
    for (int col = 1; col <= game.Cols; ++col) {
        for (int row = 1; row <= game.Rows; ++row) {
            const int number = game.GivenGrid(row, col);
            game.IslandGrid(row, col) = number > 0 ? number : -1;
        }
    }
}

Propagation Propagate(Game& game) {
    do {
        if (PollIsDue(game)) {
            ShowStatusList(game);
            LetEventsThrough(game);
        }
        if (CancelRequested(game)) return Propagation::Cancelled;
        game.ConnectCount = 0;
        ApplyRules(game);
        if (FindContradiction(game)) return Propagation::Contradiction;
    } while (game.ConnectCount != 0);
    return Propagation::Settled;
}

int SolvePuzzle(Game& game, int limit, int& trials) {
    trials = 0;
    Prepare(game);
    if (!Solve(game, limit, trials)) {
        if (!JobIsSuperseded(game)) ShowStatusList(game);
        game.window.SetPointer(Pointer::Default);
        return 1;
    }
    RestoreIslands(game);
    game.List1.Clear();
    return 0;
}

}  // namespace tidewalk
