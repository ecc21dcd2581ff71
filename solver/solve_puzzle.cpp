// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include "solver/contradictions.h"
#include "solver/rules.h"
#include "solver/status_list.h"
#include "solver/trial_search.h"

namespace tidewalk {

namespace {

bool IslandsNeedBridges(const SolverBoard& board) {
    return FirstStatusLine(board).has_value();
}

}  // namespace

Propagation Propagate(SolverBoard& board, const MayGoOn& mayGoOn) {
    do {
        if (!mayGoOn()) return Propagation::Stopped;
        board.ConnectCount = 0;
        ApplyRules(board);
        if (FindContradiction(board)) return Propagation::Contradiction;
    } while (board.ConnectCount != 0);
    return Propagation::Settled;
}

SolveResult SolvePuzzle(SolverBoard& board, const SolveBounds& bounds, const MayGoOn& mayGoOn) {
    if (!board.laid.empty()) board.Reset(PuzzleOf(board));
    if (Propagate(board, mayGoOn) != Propagation::Settled) return {false, 0};
    if (!IslandsNeedBridges(board)) return {true, 0};
    if (bounds.limit < 1) return {false, 0};
    return TrialSearch(board, bounds.mostTrials, mayGoOn);
}

}  // namespace tidewalk
