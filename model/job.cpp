// SPDX-License-Identifier: MIT
#include "model/job.h"

namespace tidewalk {

bool RefuseWhileBusy(Game& game) {
    if (!JobRuns(game)) return false;
    game.prompts.Show("Cancel Autosolve first", "vbinformation+vbok");
    return true;
}

Job::Job(Game& game) : game_(game) {
    game_.jobRunning = true;
    game_.CancelFlag = NoValue;
    Adopt();
}

Job::~Job() {
    game_.jobRunning = false;
    game_.BusyFlag = NoValue;
    game_.window.SetProgress(0, 0);
}

void Job::Adopt() {
    game_.jobLoadCount = game_.loadCount;
    game_.BusyFlag = YesValue;
}

bool PollIsDue(Game& game) {
    constexpr std::int64_t kPollMilliseconds = 20;
    return game.clock.Milliseconds() - game.lastPoll >= kPollMilliseconds;
}

void LetEventsThrough(Game& game) {
    game.events.DoEvents();
    game.lastPoll = game.clock.Milliseconds();
}

}  // namespace tidewalk
