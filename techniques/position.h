// SPDX-License-Identifier: MIT
// What is known on the way to a solution: bridges that lie, and spans that take no more than so many.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "model/cell_set.h"
#include "solver/archipelago.h"

namespace tidewalk {

/// A set of islands by their indices, visited in the order of the board.
class IsleSet {
 public:
    void Insert(int isle) { set_.Insert(isle + 1); }
    bool Empty() const { return set_.Empty(); }
    /// Takes the first one out; -1 when there is none.
    int TakeFirst() {
        const int isle = set_.First() - 1;
        if (isle >= 0) set_.Erase(isle + 1);
        return isle;
    }

 private:
    CellSet set_;
};

/// A position on a board: for each span the bridges that lie there, at least 0, and the most that can, at most 2.
///
/// The board outlives the position. Every change notes the islands that may be seen differently after it, and can be
/// taken back.
class Position {
 public:
    explicit Position(const Archipelago& board);

    const Archipelago& Board() const { return *board_; }
    int Laid(int span) const { return laid_[static_cast<std::size_t>(span)]; }
    int Most(int span) const { return most_[static_cast<std::size_t>(span)]; }
    /// Whether a bridge lies across the span.
    bool Blocked(int span) const { return crossed_[static_cast<std::size_t>(span)] > 0; }
    /// What an island still needs; below 0 when too many bridges lie at it.
    int Need(int isle) const { return need_[static_cast<std::size_t>(isle)]; }

    /// How many more bridges fit on a span: 0 when a bridge lies across it or an end is finished.
    int Room(int span) const {
        if (Blocked(span)) return 0;
        const Span& between = board_->SpanAt(span);
        return std::max(0, std::min({Most(span) - Laid(span), Need(between.ends[0]), Need(between.ends[1])}));
    }

    /// How many islands still need bridges.
    int Unfinished() const { return unfinished_; }

    /// Lays `n` more bridges, 1 or 2, whether or not there is room for them.
    void Lay(int span, int n);
    /// Notes that no more than `most` bridges, 0..2, lie on the span in any solution.
    void Limit(int span, int most);

    /// The islands about which something has changed since the set was emptied last.
    IsleSet touched;

    /// The number of changes so far; `BackTo` takes back all that came after that number.
    std::size_t Changes() const { return trail_.size(); }
    void BackTo(std::size_t changes);

 private:
    struct Change {
        int span;
        std::int8_t laid;
        std::int8_t most;
    };

    void Note(int span);
    void AddToNeeds(int span, int n);
    void TouchAround(int isle);

    const Archipelago* board_;
    std::vector<std::int8_t> laid_;
    std::vector<std::int8_t> most_;
    std::vector<std::int8_t> crossed_;
    std::vector<std::int8_t> need_;
    int unfinished_ = 0;
    std::vector<Change> trail_;  ///< what changed spans were like before
};

}  // namespace tidewalk
