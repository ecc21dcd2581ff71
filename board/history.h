// SPDX-License-Identifier: MIT
// The moves that can be taken back.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace tidewalk {

/// What stood between two islands before a move.
struct UndoRecord {
    CellNumber a = 0;
    CellNumber b = 0;
    int state = 0;  ///< 0, 1 or 2 bridges

    bool operator==(const UndoRecord&) const = default;
};

/// The record's line in the undo list: " 12, 15, 1".
std::string Text(const UndoRecord& record);

/// Reads such a line; nothing when it has another form or names a cell beyond 625 or a state beyond 2.
std::optional<UndoRecord> ParseUndoRecord(std::string_view text);

/// The moves of one puzzle, from its first to its last.
class History {
 public:
    /// The newest first.
    const std::deque<UndoRecord>& UndoList() const { return undoList_; }

    void Push(const UndoRecord& record);
    /// Takes the newest record off; nothing when there is none.
    std::optional<UndoRecord> Pop();
    void Clear();

    /// Changes with every change of the list, so that a window knows when to show it anew.
    std::uint64_t Revision() const { return revision_; }

 private:
    std::deque<UndoRecord> undoList_;
    std::uint64_t revision_ = 0;
};

}  // namespace tidewalk
