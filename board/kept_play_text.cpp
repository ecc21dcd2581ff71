// SPDX-License-Identifier: MIT
#include "board/kept_play_text.h"

#include <utility>
#include <vector>

#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Takes what comes before the next `end` off the text, and the `end`; all of it when there is none.
std::string_view TakeUntil(std::string_view& text, char end) {
    const std::size_t length = text.find(end);
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length == std::string_view::npos ? text.size() : length + 1);
    return taken;
}

/// The number that has just this text.
std::optional<int> WholeNumber(std::string_view text) {
    constexpr std::size_t kMostDigits = 10;
    if (text.size() > kMostDigits) return std::nullopt;
    const int number = RoundedVal(text);
    return NumText(number) == text ? std::optional(number) : std::nullopt;
}

/// Numbers of moves, each greater than the one before.
std::optional<std::vector<int>> ParseCheckpoints(std::string_view line) {
    std::vector<int> checkpoints;
    while (!line.empty()) {
        const std::optional<int> moment = WholeNumber(TakeUntil(line, ','));
        if (!moment || *moment <= (checkpoints.empty() ? -1 : checkpoints.back())) return std::nullopt;
        checkpoints.push_back(*moment);
    }
    return checkpoints;
}

std::optional<PlayedMove> ParseMove(std::string_view line) {
    constexpr std::size_t kLongestMove = 20;
    const std::size_t last = line.rfind(',');
    if (last == std::string_view::npos || line.size() > kLongestMove) return std::nullopt;
    const std::optional<UndoRecord> record = ParseUndoRecord(line.substr(0, last));
    const std::string_view later = line.substr(last + 1);
    const int after = RoundedVal(later);
    if (!record || Str(after) != later || after < kMarked || after > 2) return std::nullopt;
    return PlayedMove{*record, after};
}

}  // namespace

std::string HistoryText(const History& history) {
    std::string text = NumText(history.Done()) + "\n";
    for (const int moment : history.Checkpoints())
        text += (text.back() == '\n' ? "" : ",") + NumText(moment);
    text += "\n";
    for (const PlayedMove& move : history.Moves())
        text += Text(move.record) + "," + Str(move.after) + "\n";
    return text;
}

std::optional<History> ParseHistory(std::string_view text) {
    if (text.size() > kLongestHistoryText || text.empty() || text.back() != '\n') return std::nullopt;
    const std::optional<int> done = WholeNumber(TakeUntil(text, '\n'));
    std::optional<std::vector<int>> checkpoints = ParseCheckpoints(TakeUntil(text, '\n'));
    std::vector<PlayedMove> moves;
    while (!text.empty()) {
        const std::optional<PlayedMove> move = ParseMove(TakeUntil(text, '\n'));
        if (!move) return std::nullopt;
        moves.push_back(*move);
    }
    const int count = static_cast<int>(moves.size());
    if (!done || *done < 0 || *done > count || !checkpoints) return std::nullopt;
    if (!checkpoints->empty() && checkpoints->back() > count) return std::nullopt;
    return History(std::move(moves), *done, *std::move(checkpoints));
}

}  // namespace tidewalk
