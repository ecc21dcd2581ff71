// SPDX-License-Identifier: MIT
#include <chrono>

#include "game/clock.h"
#include "model/random_source.h"

namespace tidewalk {

double SystemClock::Timer() {
    return SystemTimeOfDay();
}

std::int64_t SystemClock::Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace tidewalk
