// SPDX-License-Identifier: MIT
#include "game/job_state.h"

namespace tidewalk {

bool JobState::PollIsDue(std::int64_t now) const {
    constexpr std::int64_t kPollMilliseconds = 20;
    return now - lastPoll_ >= kPollMilliseconds;
}

void JobState::Begin() {
    busy_ = true;
    cancelled_ = superseded_ = false;
}

void JobState::End() {
    busy_ = superseded_ = false;
}

}  // namespace tidewalk
