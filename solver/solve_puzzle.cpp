// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include "solver/connect_islands.h"
#include "solver/contradictions.h"
#include "solver/count_solutions.h"
#include "solver/rules.h"
#include "solver/status_list.h"
#include "solver/trial_search.h"

namespace tidewalk {

namespace {

bool IslandsNeedBridges(const SolverBoard& board) {
    return FirstStatusLine(board).has_value();
}

/// Lays the first solution that `FindSolutions` comes to, after so many trials.
SolveResult SolveExactly(SolverBoard& board, int trials, const MayGoOn& mayGoOn) {
    const Puzzle puzzle = PuzzleOf(board);
    const Archipelago archipelago(puzzle);
    const auto found = FindSolutions(archipelago, 1, mayGoOn);
    if (!found) return {SolveEnd::Stopped, trials};
    if (found->empty()) return {SolveEnd::NoSolution, trials};
    board.Reset(puzzle);
    for (int span = 0; span < archipelago.SpanCount(); ++span) {
        const int bridges = found->front()[static_cast<std::size_t>(span)];
        const auto [a, b] = archipelago.SpanAt(span).ends;
        if (bridges > 0)
            ConnectIslands(board, Rule::Trial, archipelago.IsleAt(a).id, archipelago.IsleAt(b).id, bridges);
    }
    return {SolveEnd::Solved, trials};
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
    const Propagation outcome = Propagate(board, mayGoOn);
    if (outcome == Propagation::Stopped) return {SolveEnd::Stopped};
    if (outcome == Propagation::Contradiction) return {SolveEnd::Failed};
    if (!IslandsNeedBridges(board)) return {SolveEnd::Solved};
    if (bounds.limit < 1) return {SolveEnd::GivenUp};
    const int mostTrials = bounds.mostTrials > 0 ? bounds.mostTrials : kTrialsBeforeExactSearch;
    const SolveResult result = TrialSearch(board, mostTrials, mayGoOn);
    const bool mayGiveUp = bounds.mostTrials > 0;
    return result.end == SolveEnd::GivenUp && !mayGiveUp ? SolveExactly(board, result.trials, mayGoOn) : result;
}

}  // namespace tidewalk
