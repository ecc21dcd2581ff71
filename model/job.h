// SPDX-License-Identifier: MIT
// Long jobs: staying out of each other's way, letting events through, stopping when asked.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// True while a long job runs. The grids are the job's then: the board neither takes moves nor is drawn anew.
inline bool JobRuns(const Game& game) {
    return game.BusyFlag == YesValue || game.jobRunning;
}

/// When a long job runs, says "Cancel Autosolve first" and returns true.
bool RefuseWhileBusy(Game& game);

/// True when 20 ms have passed since pending events last happened, so that a loop may ask as often as it likes.
bool PollIsDue(Game& game);

/// Lets pending events happen.
void LetEventsThrough(Game& game);

/// Lets pending events happen when that is due.
inline void PollEvents(Game& game) {
    if (PollIsDue(game)) LetEventsThrough(game);
}

/// True when another puzzle was loaded in the middle of the running job: the grids are no longer its own.
inline bool JobIsSuperseded(const Game& game) {
    return game.jobRunning && game.loadCount != game.jobLoadCount;
}

/// A long job, from its start to its end. No second one can begin while it lives.
///
/// Some commands may replace the puzzle in the middle of a job (typing a puzzle number is one). The job is then
/// superseded: what it worked on is gone, and it has to stop without touching what is there now.
class Job {
 public:
    /// Sets `BusyFlag` and clears `CancelFlag`.
    explicit Job(Game& game);
    /// Clears `BusyFlag` and takes the progress display away.
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    bool Superseded() const { return JobIsSuperseded(game_); }

    /// Takes the puzzle that is loaded now for the job's own, and holds `BusyFlag` again, which every load resets.
    void Adopt();

 private:
    Game& game_;
};

/// True when the running job is to stop.
inline bool CancelRequested(const Game& game) {
    return game.CancelFlag == YesValue || game.ending || JobIsSuperseded(game);
}

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
