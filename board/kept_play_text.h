// SPDX-License-Identifier: MIT
// The text form of a history, in which it is kept.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "board/history.h"

namespace tidewalk {

/// The longest text that is read, in bytes: some 75 000 moves, which nobody makes on one puzzle.
inline constexpr std::size_t kLongestHistoryText = 1U << 20U;

/// How many moves are done in the first line, the checkpoints in the second one, "1,4", then a line for each move: the
/// text of its record and the later state, " 12, 15, 0, 1". Lines end in LF.
std::string HistoryText(const History& history);

/// Reads such a text; nothing when it is another one, or longer than `kLongestHistoryText`. The history is one that can
/// be gone through in both directions; whether its cells are islands of a puzzle is not known here.
std::optional<History> ParseHistory(std::string_view text);

}  // namespace tidewalk
