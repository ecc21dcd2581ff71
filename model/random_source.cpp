// SPDX-License-Identifier: MIT
#include "model/random_source.h"

#include <bit>
#include <chrono>
#include <utility>

namespace tidewalk {

namespace {

/// The output function of SplitMix64 (Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014).
std::uint64_t Mix(std::uint64_t x) {
    x += 0x9E3779B97F4A7C15U;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9U;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBU;
    return x ^ (x >> 31);
}

}  // namespace

double SystemTimeOfDay() {
    using Seconds = std::chrono::duration<double>;
    const auto now = std::chrono::system_clock::now();
    return Seconds(now - std::chrono::floor<std::chrono::days>(now)).count();
}

RandomSource::RandomSource(TimeOfDay timeOfDay)
    : timeOfDay_(std::move(timeOfDay)), state_(Mix(std::bit_cast<std::uint64_t>(timeOfDay_()))) {}

void RandomSource::UseSeed(std::uint64_t seed) {
    state_ = Mix(seed);
    counter_ = 0;
}

void RandomSource::Reseed() {
    if (counter_) {
        time_ = ++*counter_;
    } else if (untilClock_-- == 0) {
        // Reading the clock costs more than all the rest of a draw, and draws come by the thousand within one tick.
        constexpr int kDrawsPerReading = 16;
        untilClock_ = kDrawsPerReading - 1;
        time_ = std::bit_cast<std::uint64_t>(timeOfDay_());
    }
    state_ = Mix(state_ ^ time_);
}

double RandomSource::Rnd() {
    state_ = Mix(state_);
    constexpr double kStep = 1.0 / (std::uint64_t{1} << 53);
    return static_cast<double>(state_ >> 11) * kStep;
}

}  // namespace tidewalk
