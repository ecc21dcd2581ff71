// SPDX-License-Identifier: MIT
#include "game/job_state.h"

#include <utility>

namespace tidewalk {

bool JobState::PollIsDue(std::int64_t now) const {
    constexpr std::int64_t kPollMilliseconds = 20;
    return now - lastPoll_ >= kPollMilliseconds;
}

void JobState::Begin(std::string name) {
    busy_ = true;
    cancelled_ = superseded_ = stopped_ = false;
    name_ = std::move(name);
}

void JobState::End() {
    busy_ = superseded_ = false;
}

}  // namespace tidewalk
