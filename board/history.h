// SPDX-License-Identifier: MIT
// The moves on a puzzle: those that can be taken back, those that were, and the checkpoints among them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/grid.h"

namespace tidewalk {

/// What can be between two islands besides 0, 1 or 2 bridges, as records have it: nothing, before a mark was set, and
/// the mark that no bridge goes there.
inline constexpr int kUnmarked = -1;
inline constexpr int kMarked = -2;

/// What was between two islands before a move.
struct UndoRecord {
    CellNumber a = 0;
    CellNumber b = 0;
    int state = 0;  ///< 0, 1 or 2 bridges, `kUnmarked` or `kMarked`

    bool operator==(const UndoRecord&) const = default;
};

/// The record's line in the undo list: " 12, 15, 1".
std::string Text(const UndoRecord& record);

/// Reads such a line; nothing when it has another form or names a cell beyond 625 or a state that there is not.
std::optional<UndoRecord> ParseUndoRecord(std::string_view text);

/// A record, and what was between the islands after the move.
struct PlayedMove {
    UndoRecord record;
    int after = 0;

    /// False for a move that was refused: it is taken back like any other, but there is nothing to see of it.
    bool ChangedAnything() const { return after != record.state; }
    bool operator==(const PlayedMove&) const = default;
};

/// The moves of one puzzle, from its first to its last.
class History {
 public:
    History() = default;
    /// The history of moves that were kept: the first `done` of them are made, the others taken back. Checkpoints are
    /// numbers of moves, ascending.
    History(std::vector<PlayedMove> moves, int done, std::vector<int> checkpoints);

    /// All moves, the oldest first; from `Done()` on those that were taken back.
    const std::vector<PlayedMove>& Moves() const { return moves_; }
    int Done() const { return done_; }
    int Count() const { return static_cast<int>(moves_.size()); }

    /// The records of the moves that can be taken back, the newest first.
    std::vector<UndoRecord> UndoList() const;

    /// A new move. What was taken back before is gone, and checkpoints that lay there with it; only a move that was
    /// refused is then none.
    void Push(const PlayedMove& move);
    /// Takes the newest move back, or makes the one again that was taken back last; nothing when there is none.
    std::optional<PlayedMove> Undo();
    std::optional<PlayedMove> Redo();
    void Clear();
    /// Takes the moves of a history that was kept.
    void Take(History kept);

    /// The numbers of moves at which checkpoints were set, ascending.
    const std::vector<int>& Checkpoints() const { return checkpoints_; }
    /// Remembers this moment. A second checkpoint at the same moment is none.
    void SetCheckpoint();
    /// The moment to go back to: that of the newest checkpoint before this one. A checkpoint at this very moment has
    /// been gone back to already and is given up then. Nothing when there is none to go back to.
    std::optional<int> BackToCheckpoint();

    /// Changes with every change of the history, so that a window knows when to show it anew.
    std::uint64_t Revision() const { return revision_; }

    /// The same moves and checkpoints, however they came about.
    bool operator==(const History& other) const {
        return moves_ == other.moves_ && done_ == other.done_ && checkpoints_ == other.checkpoints_;
    }

 private:
    std::vector<PlayedMove> moves_;
    int done_ = 0;
    std::vector<int> checkpoints_;
    std::uint64_t revision_ = 0;
};

}  // namespace tidewalk
