// SPDX-License-Identifier: MIT
#include "solver/trial_search.h"

#include <optional>

#include "solver/connect_islands.h"
#include "solver/status_list.h"

namespace tidewalk {

namespace {

class Search {
 public:
    Search(SolverBoard& board, int mostTrials, const MayGoOn& mayGoOn)
        : board_(board), mostTrials_(mostTrials), mayGoOn_(mayGoOn) {}

    SolveResult Run() {
        board_.choicePoints.clear();
        std::optional<StatusLine> line = FirstStatusLine(board_);
        if (!line) return {SolveEnd::Failed};
        while (line) {
            if (line->HasMoves()) {
                if (const auto end = StartTrial(*line)) return {*end, trials_};
            }
            const Propagation outcome = line->HasMoves() ? LayAndPropagate(*line) : Propagation::Contradiction;
            if (outcome == Propagation::Stopped) return {SolveEnd::Stopped, trials_};
            const bool deadEnd = outcome == Propagation::Contradiction;
            line = deadEnd ? BackUp() : FirstStatusLine(board_);
            if (deadEnd && !line) return {SolveEnd::Failed, trials_};
        }
        return {SolveEnd::Solved, trials_};
    }

 private:
    /// Counts a trial; why it may not be made, if so.
    std::optional<SolveEnd> StartTrial(const StatusLine& line) {
        ++trials_;
        if (!mayGoOn_()) return SolveEnd::Stopped;
        if (trials_ >= mostTrials_) return SolveEnd::GivenUp;
        const bool leavesMoves = line.firstMove + 1 < line.moveCount;
        if (leavesMoves && board_.BranchCount() >= kMaxBranches) return SolveEnd::GivenUp;
        return std::nullopt;
    }

    /// Lays the line's first move and lets the rules run on.
    Propagation LayAndPropagate(StatusLine& line) {
        const Move move = line.TakeMove();
        if (line.HasMoves()) board_.choicePoints.push_back({line, board_.laid.size(), board_.awaitingRules});
        ConnectIslands(board_, Rule::Trial, line.island, move.neighbour, move.bridges);
        return Propagate(board_, mayGoOn_);
    }

    /// Goes back to the newest choice point and returns the line with its left-over moves; nothing when there is none.
    std::optional<StatusLine> BackUp() {
        if (board_.choicePoints.empty()) return std::nullopt;
        const ChoicePoint point = board_.choicePoints.back();
        board_.choicePoints.pop_back();
        TakeBackBridges(board_, point.laid);
        // At a choice point no contradiction was found, so nothing waits for a check.
        board_.awaitingRules = point.awaitingRules;
        board_.awaitingCheck.Clear();
        board_.overdrawnLinks = 0;
        return point.line;
    }

    SolverBoard& board_;
    int mostTrials_;
    const MayGoOn& mayGoOn_;
    int trials_ = 0;
};

}  // namespace

SolveResult TrialSearch(SolverBoard& board, int mostTrials, const MayGoOn& mayGoOn) {
    return Search(board, mostTrials, mayGoOn).Run();
}

}  // namespace tidewalk
