// SPDX-License-Identifier: MIT
// The next step from what a player has on the board.
#pragma once

#include <optional>
#include <vector>

#include "model/may_go_on.h"
#include "techniques/explain.h"

namespace tidewalk {

/// What a player says of two islands, by their cells.
struct PlayedPair {
    CellNumber a = 0;
    CellNumber b = 0;
    int bridges = 0;      ///< that lie between them
    bool noMore = false;  ///< marked as taking no further bridge
};

/// The kinds of answer.
enum class HintKind {
    Step,        ///< a next step
    Mistake,     ///< no solution holds what is played
    Finished,    ///< the board holds its solution
    NoSolution,  ///< whatever is played
    Several,     ///< the puzzle has more than one solution
    Nothing      ///< it could not be told
};

/// What is told to a player who asks for the next step.
struct Hint {
    HintKind kind = HintKind::Nothing;
    std::vector<Step> steps;           ///< the last one is the hint; those before it say what cannot be, which it needs
    std::vector<PlayedPair> mistakes;  ///< what no solution has so
};

/// Which steps a hint may end with.
enum class HintStep {
    Any,         ///< the easiest one
    WithBridges  ///< one that lays bridges; steps before it say what cannot be
};

/// A hint for the pairs played. `solutions` are two of the board's solutions, or all if there are fewer; nothing when
/// that is not known, and then mistakes are not found.
Hint FindHint(const Archipelago& board, const std::optional<std::vector<SpanBridges>>& solutions,
              const std::vector<PlayedPair>& played, HintStep wanted, const MayGoOn& mayGoOn);

/// The span between two cells, or -1 when these are not two islands that see each other.
int SpanBetween(const Archipelago& board, CellNumber a, CellNumber b);

}  // namespace tidewalk
