// SPDX-License-Identifier: MIT
#include "model/puzzle_range.h"

#include <charconv>

namespace tidewalk {

namespace {

std::optional<int> ParseNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    // The largest one stands for the end of the collection.
    if (!isNumber || number < 1 || number == PuzzleRange::kEnd) return std::nullopt;
    return number;
}

}  // namespace

std::optional<PuzzleRange> ParsePuzzleRange(std::string_view text) {
    const std::size_t dash = text.find('-');
    const auto first = ParseNumber(text.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : ParseNumber(text.substr(dash + 1));
    if (!first || !last || *first > *last) return std::nullopt;
    return PuzzleRange{*first, *last};
}

}  // namespace tidewalk
