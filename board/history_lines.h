// SPDX-License-Identifier: MIT
// The moves on a puzzle as people read them.
#pragma once

#include <string>
#include <vector>

#include "board/history.h"
#include "model/puzzle.h"

namespace tidewalk {

/// A line of the list of moves.
struct HistoryLine {
    enum class Kind { Move, Checkpoint, Beginning };

    Kind kind = Kind::Move;
    int moment = 0;        ///< how many moves are made at the moment that the line leads to
    PlayedMove move;       ///< of a move: which one
    int number = 0;        ///< of a checkpoint: which one, from 1
    bool isAhead = false;  ///< it was taken back

    bool operator==(const HistoryLine&) const = default;
};

/// The lines from the newest to the beginning, those that were taken back on top. Moves that changed nothing have none,
/// and where there is neither a move nor a checkpoint there is no beginning.
std::vector<HistoryLine> HistoryLines(const History& history);

/// "R3C5 - R3C9: 1 to 2".
std::string Text(const HistoryLine& line, const Puzzle& puzzle);

/// The same for the ear: "row 3, column 5 to row 3, column 9: from 1 to 2".
std::string SpokenText(const HistoryLine& line, const Puzzle& puzzle);

}  // namespace tidewalk
