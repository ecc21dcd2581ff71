// SPDX-License-Identifier: MIT
// The seam to the time.
#pragma once

#include <cstdint>

namespace tidewalk {

/// The time.
class Clock {
 public:
    virtual ~Clock() = default;

    /// Seconds since midnight, with a fraction, 0 <= t < 86400.
    virtual double Timer() = 0;

    /// Milliseconds since some fixed moment; never goes back.
    virtual std::int64_t Milliseconds() = 0;
};

/// The machine's own clock (the time of day by universal time).
class SystemClock final : public Clock {
 public:
    double Timer() override;
    std::int64_t Milliseconds() override;
};

}  // namespace tidewalk
