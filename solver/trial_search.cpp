// SPDX-License-Identifier: MIT
#include "solver/trial_search.h"

#include <optional>
#include <vector>

#include "model/job.h"
#include "model/numbers.h"
#include "solver/connect_islands.h"
#include "solver/solve_puzzle.h"
#include "solver/status_list.h"

namespace tidewalk {

namespace {

/// Where the search can go on when its present way is a dead end.
struct ChoicePoint {
    StatusLine line;        ///< with the moves that were not taken yet
    std::size_t laid = 0;   ///< how many calls of `ConnectIslands` came before
    CellSet awaitingRules;  ///< whom the rules had still to look at again
};

class Search {
 public:
    Search(Game& game, int& trials) : game_(game), trials_(trials) {}

    bool Run() {
        trials_ = 0;
        game_.BranchCount = 0;
        game_.List2.Clear();
        std::optional<StatusLine> line = FirstStatusLine(game_);
        if (!line) return false;
        while (line) {
            if (line->HasMoves() && !StartTrial(*line)) return false;
            const bool deadEnd = !line->HasMoves() || !LayAndPropagate(*line);
            if (CancelRequested(game_)) return false;
            line = deadEnd ? BackUp() : FirstStatusLine(game_);
            if (deadEnd && !line) return false;
        }
        return true;
    }

    /// Fills `List2` with a line for each choice point that is open, the newest first.
    void ShowChoicePoints() {
        game_.List2.Clear();
        for (std::size_t i = choicePoints_.size(); i > 0; --i) {
            game_.List2.Add(Format(static_cast<int>(i), "000") + " " + Text(choicePoints_[i - 1].line));
        }
    }

 private:
    /// Counts a trial; false when the search may not go on.
    bool StartTrial(const StatusLine& line) {
        ++trials_;
        if (PollIsDue(game_)) {
            ShowStatusList(game_);
            ShowChoicePoints();
            LetEventsThrough(game_);
        }
        if (game_.TrialLimit > 0 && trials_ >= game_.TrialLimit) return false;
        const bool leavesMoves = line.firstMove + 1 < line.moveCount;
        return !CancelRequested(game_) && (!leavesMoves || game_.BranchCount < kMaxBranches);
    }

    /// Lays the line's first move; false when that is a dead end.
    bool LayAndPropagate(StatusLine& line) {
        const Move move = line.TakeMove();
        if (line.HasMoves()) {
            choicePoints_.push_back({line, game_.laid.size(), game_.awaitingRules});
            ++game_.BranchCount;
        }
        const std::string label = Format(line.island, "000") + "connected with" + Format(move.neighbour, "000");
        ConnectIslands(game_, label, line.island, move.neighbour, move.bridges);
        return Propagate(game_) == Propagation::Settled;
    }

    /// Goes back to the newest choice point and returns the line with its left-over moves; nothing when there is none.
    std::optional<StatusLine> BackUp() {
        if (choicePoints_.empty()) return std::nullopt;
        const ChoicePoint point = choicePoints_.back();
        choicePoints_.pop_back();
        --game_.BranchCount;
        TakeBackBridges(game_, point.laid);
        // At a choice point no contradiction was found, so nothing waits for a check.
        game_.awaitingRules = point.awaitingRules;
        game_.awaitingCheck.Clear();
        game_.overdrawnLinks = 0;
        return point.line;
    }

    Game& game_;
    int& trials_;
    std::vector<ChoicePoint> choicePoints_;
};

}  // namespace

int TrialSearch(Game& game, int& trials) {
    Search search(game, trials);
    const int failed = search.Run() ? 0 : 1;
    search.ShowChoicePoints();
    return failed;
}

}  // namespace tidewalk
