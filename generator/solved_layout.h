// SPDX-License-Identifier: MIT
// A layout with bridges that solve it, whose numbers follow when bridges change.
#pragma once

#include "model/puzzle.h"
#include "solver/archipelago.h"
#include "solver/count_solutions.h"

namespace tidewalk {

/// The islands of a layout and the bridges between them. Islands stay; every change of a bridge changes the numbers at
/// its ends, so that the bridges always solve the layout as long as all islands hang together.
class SolvedLayout {
 public:
    /// The islands of the puzzle with the bridges of its link list, which solve it.
    explicit SolvedLayout(const Puzzle& solved);

    const Archipelago& Board() const { return board_; }
    const SpanBridges& Bridges() const { return bridges_; }
    int At(int span) const { return bridges_[static_cast<std::size_t>(span)]; }

    int Pairs() const { return pairs_; }
    int Doubles() const { return doubles_; }
    /// The bridged pairs beyond those of a tree.
    int Loops() const { return pairs_ - (board_.IsleCount() - 1); }

    /// Lays `bridges`, 0..2, on the span instead of what lies there.
    void Set(int span, int bridges);
    /// Whether no bridge lies across the span.
    bool IsFree(int span) const;
    /// Whether all islands hang together without the bridges of this span. It takes a walk over the board.
    bool IsSpare(int span) const;

    /// The puzzle with these bridges in its link list.
    Puzzle ToPuzzle() const;

 private:
    BoardSize size_;
    Archipelago board_;
    SpanBridges bridges_;
    int pairs_ = 0;
    int doubles_ = 0;
};

}  // namespace tidewalk
