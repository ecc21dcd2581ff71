// SPDX-License-Identifier: MIT
// Which puzzles of a collection are meant: "7" or "3-9".
#pragma once

#include <limits>
#include <optional>
#include <string_view>

namespace tidewalk {

/// All puzzles, unless it is told otherwise.
struct PuzzleRange {
    static constexpr int kEnd = std::numeric_limits<int>::max();

    int first = 1;
    int last = kEnd;  ///< `kEnd` for the last one that there is

    bool Holds(int number) const { return number >= first && number <= last; }
    bool operator==(const PuzzleRange&) const = default;
};

/// Reads a range; nothing for any other text, a number below 1 or a range that runs backwards.
std::optional<PuzzleRange> ParsePuzzleRange(std::string_view text);

}  // namespace tidewalk
