// SPDX-License-Identifier: MIT
#include "game/job.h"

#include <utility>

#include "solver/status_list.h"

namespace tidewalk {

bool RefuseWhileBusy(Game& game) {
    if (!game.job.BusyFlag()) return false;
    game.prompts.Show("Cancel Autosolve first", "vbinformation+vbok");
    return true;
}

bool RefuseWithoutPuzzle(Game& game) {
    if (game.board.puzzle.CellCount() == 0) {
        game.prompts.Show("There is no puzzle to solve", "vbinformation+vbok");
        return true;
    }
    if (game.board.puzzle.IslandCount() == 0) {
        game.prompts.Show("Set the puzzle first", "vbinformation+vbok");
        return true;
    }
    return false;
}

void LetEventsThrough(Game& game) {
    game.events.DoEvents();
    game.job.Polled(game.clock.Milliseconds());
}

void PollEvents(Game& game) {
    if (game.job.PollIsDue(game.clock.Milliseconds())) LetEventsThrough(game);
}

Job::Job(Game& game, std::string name) : game_(game) {
    game_.job.Begin(std::move(name));
}

Job::~Job() {
    game_.job.End();
    game_.window.SetProgress(0, 0);
}

MayGoOn Watched(Game& game, const SolverBoard& board, std::function<void()> show) {
    return [&game, &board, show = std::move(show)] {
        if (game.job.PollIsDue(game.clock.Milliseconds())) {
            ShowWorkLists(game, board);
            show();
            LetEventsThrough(game);
        }
        return !game.job.MustStop();
    };
}

MayGoOn Watched(Game& game, const SolverBoard& board) {
    return Watched(game, board, [] {});
}

MayGoOn Watched(Game& game) {
    return [&game] {
        PollEvents(game);
        return !game.job.MustStop();
    };
}

void ForgetStatus(Game& game) {
    if (!game.job.BusyFlag()) game.window.SetText(WindowText::Status, "");
}

void ShowWorkLists(Game& game, const SolverBoard& board) {
    game.List1.SetLines(StatusLines(board));
    game.List2.SetLines(ChoicePointLines(board));
}

}  // namespace tidewalk
