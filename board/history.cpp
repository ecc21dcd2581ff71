// SPDX-License-Identifier: MIT
#include "board/history.h"

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
                         record.state >= 0 && record.state <= 2;
    if (!inRange || Text(record) != text) return std::nullopt;
    return record;
}

void History::Push(const UndoRecord& record) {
    undoList_.push_front(record);
    ++revision_;
}

std::optional<UndoRecord> History::Pop() {
    if (undoList_.empty()) return std::nullopt;
    const UndoRecord record = undoList_.front();
    undoList_.pop_front();
    ++revision_;
    return record;
}

void History::Clear() {
    undoList_.clear();
    ++revision_;
}

}  // namespace tidewalk
