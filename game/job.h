// SPDX-License-Identifier: MIT
// Long jobs: staying out of each other's way, letting events through, stopping when asked.
#pragma once

#include <functional>
#include <string>

#include "game/game.h"
#include "model/may_go_on.h"
#include "solver/solver_board.h"

namespace tidewalk {

/// When a long job runs, says "Cancel Autosolve first" and returns true.
bool RefuseWhileBusy(Game& game);

/// Says so and returns true when there is no puzzle on the board that could be solved.
bool RefuseWithoutPuzzle(Game& game);

/// Lets pending events happen.
void LetEventsThrough(Game& game);

/// Lets pending events happen when that is due.
void PollEvents(Game& game);

/// A long job, from its start to its end. No second one can begin while it lives.
///
/// Some commands may replace the puzzle in the middle of a job (typing a puzzle number is one). The job is then
/// superseded: what it worked for is gone, and it has to stop without touching what is there now, or to adopt it.
class Job {
 public:
    /// `name` tells the player what it is: "AutoSolve".
    Job(Game& game, std::string name);
    /// Takes the progress display away.
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Takes the puzzle that is loaded now for the job's own.
    void Adopt() { game_.job.Adopt(); }

 private:
    Game& game_;
};

/// What the engine is to ask while it works on `board` in the running job: lets events happen when that is due, with
/// the board's work lists in `List1` and `List2` and what `show` shows, and says no once the job has to stop. Both have
/// to live as long.
MayGoOn Watched(Game& game, const SolverBoard& board, std::function<void()> show);
MayGoOn Watched(Game& game, const SolverBoard& board);

/// The same for work that has no work lists.
MayGoOn Watched(Game& game);

/// Fills `List1` with the islands that need bridges and `List2` with the open choice points.
void ShowWorkLists(Game& game, const SolverBoard& board);

/// A command begins, or a move was made: what the status line said of the last one is no longer true. A running job
/// keeps the line.
void ForgetStatus(Game& game);

/// Shows the busy pointer for as long as it lives.
class BusyPointer {
 public:
    explicit BusyPointer(Game& game) : game_(game) { game_.window.SetPointer(Pointer::Busy); }
    ~BusyPointer() { game_.window.SetPointer(Pointer::Default); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

 private:
    Game& game_;
};

}  // namespace tidewalk
