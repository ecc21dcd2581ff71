// SPDX-License-Identifier: MIT
// Random draws.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace tidewalk {

/// Seconds since midnight, with a fraction, 0 <= t < 86400.
using TimeOfDay = std::function<double()>;

/// The machine's own clock, by universal time.
double SystemTimeOfDay();

/// A source of uniform numbers that is reseeded from the time of day before each draw.
///
/// The time is mixed into the running state and never replaces it, so draws within one tick of the clock differ.
/// With a seed of its own the clock is replaced by a counter: the same seed gives the same draws on every machine.
class RandomSource {
 public:
    /// Draws that differ from run to run.
    explicit RandomSource(TimeOfDay timeOfDay = SystemTimeOfDay);
    /// Draws that depend on `seed` alone.
    explicit RandomSource(std::uint64_t seed) { UseSeed(seed); }

    /// From now on draws depend on `seed` alone.
    void UseSeed(std::uint64_t seed);

    /// Mixes the time of day into the state.
    void Reseed();

    /// A uniform number u, 0 <= u < 1.
    double Rnd();

    /// Reseeds and draws among `n` choices: the whole part of u * n, 0..n-1.
    int Draw(int n) {
        Reseed();
        return static_cast<int>(Rnd() * n);
    }

 private:
    TimeOfDay timeOfDay_;
    std::uint64_t state_ = 0;
    std::optional<std::uint64_t> counter_;
    int untilClock_ = 0;
    std::uint64_t time_ = 0;
};

}  // namespace tidewalk
