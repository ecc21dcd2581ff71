// SPDX-License-Identifier: MIT
// How long the puzzle on the board has been played.
#pragma once

#include <cstdint>

namespace tidewalk {

/// Counts while the window is active and the puzzle is not solved. Times are those of the game's clock, in
/// milliseconds.
class PlayTime {
 public:
    /// Another puzzle comes onto the board, on which so many seconds were spent before.
    void Begin(int seconds, std::int64_t now) {
        before_ = seconds;
        counted_ = 0;
        since_ = now;
        solved_ = false;
    }

    void SetActive(bool active, std::int64_t now) {
        counted_ = Uncounted(now);
        since_ = now;
        active_ = active;
    }
    void SetSolved(bool solved, std::int64_t now) {
        counted_ = Uncounted(now);
        since_ = now;
        solved_ = solved;
    }

    /// The seconds spent on the puzzle.
    int Seconds(std::int64_t now) const { return before_ + static_cast<int>(Uncounted(now) / kSecond); }

    /// Takes the whole seconds that were not taken yet, to be kept.
    int TakeNew(std::int64_t now) {
        counted_ = Uncounted(now);
        since_ = now;
        const int whole = static_cast<int>(counted_ / kSecond);
        counted_ -= whole * kSecond;
        before_ += whole;
        return whole;
    }

 private:
    static constexpr std::int64_t kSecond = 1000;

    std::int64_t Uncounted(std::int64_t now) const { return counted_ + (active_ && !solved_ ? now - since_ : 0); }

    int before_ = 0;            ///< seconds that were taken or kept before
    std::int64_t counted_ = 0;  ///< milliseconds until `since_` that were not taken yet
    std::int64_t since_ = 0;
    bool active_ = false;
    bool solved_ = false;
};

}  // namespace tidewalk
