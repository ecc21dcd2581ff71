// SPDX-License-Identifier: MIT
#include "model/clock.h"

#include <chrono>

namespace tidewalk {

double SystemClock::Timer() {
    using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;
    const auto now = std::chrono::system_clock::now();
    return std::chrono::duration<double>(now - std::chrono::floor<Days>(now)).count();
}

std::int64_t SystemClock::Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace tidewalk
