// SPDX-License-Identifier: MIT
#include "board/history.h"

#include <algorithm>
#include <utility>

#include "model/numbers.h"

namespace tidewalk {

std::string Text(const UndoRecord& record) {
    return Str(record.a) + "," + Str(record.b) + "," + Str(record.state);
}

std::optional<UndoRecord> ParseUndoRecord(std::string_view text) {
    const std::size_t first = text.find(',');
    if (first == std::string_view::npos) return std::nullopt;
    const std::size_t second = text.find(',', first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const UndoRecord record{RoundedVal(text.substr(0, first)), RoundedVal(text.substr(first + 1, second - first - 1)),
                            RoundedVal(text.substr(second + 1))};
    const bool inRange = record.a >= 0 && record.a <= kMaxCells && record.b >= 0 && record.b <= kMaxCells &&
                         record.state >= kMarked && record.state <= 2;
    if (!inRange || Text(record) != text) return std::nullopt;
    return record;
}

History::History(std::vector<PlayedMove> moves, int done, std::vector<int> checkpoints)
    : moves_(std::move(moves)), done_(done), checkpoints_(std::move(checkpoints)) {}

std::vector<UndoRecord> History::UndoList() const {
    std::vector<UndoRecord> records;
    for (int at = done_ - 1; at >= 0; --at)
        records.push_back(moves_[static_cast<std::size_t>(at)].record);
    return records;
}

void History::Push(const PlayedMove& move) {
    // A click that came to nothing does not end what can be made again.
    if (!move.ChangedAnything() && done_ < Count()) return;
    moves_.resize(static_cast<std::size_t>(done_));
    std::erase_if(checkpoints_, [this](int moment) { return moment > done_; });
    moves_.push_back(move);
    ++done_;
    ++revision_;
}

std::optional<PlayedMove> History::Undo() {
    if (done_ == 0) return std::nullopt;
    ++revision_;
    return moves_[static_cast<std::size_t>(--done_)];
}

std::optional<PlayedMove> History::Redo() {
    if (done_ == Count()) return std::nullopt;
    ++revision_;
    return moves_[static_cast<std::size_t>(done_++)];
}

void History::Clear() {
    moves_.clear();
    checkpoints_.clear();
    done_ = 0;
    ++revision_;
}

void History::Take(History kept) {
    kept.revision_ = revision_ + 1;
    *this = std::move(kept);
}

void History::SetCheckpoint() {
    const auto place = std::lower_bound(checkpoints_.begin(), checkpoints_.end(), done_);
    if (place != checkpoints_.end() && *place == done_) return;
    checkpoints_.insert(place, done_);
    ++revision_;
}

std::optional<int> History::BackToCheckpoint() {
    const auto here = std::lower_bound(checkpoints_.begin(), checkpoints_.end(), done_);
    if (here == checkpoints_.begin()) return std::nullopt;
    const int moment = *std::prev(here);
    if (std::erase(checkpoints_, done_) > 0) ++revision_;
    return moment;
}

}  // namespace tidewalk
