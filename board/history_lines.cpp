// SPDX-License-Identifier: MIT
#include "board/history_lines.h"

#include <algorithm>

#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Two islands, with what stands before their rows, before their columns and between them.
std::string PairText(const PlayedMove& move, const Puzzle& puzzle, const char* row, const char* col,
                     const char* between) {
    const auto place = [&](CellNumber id) {
        return row + NumText(puzzle.CellRow(id)) + col + NumText(puzzle.CellCol(id));
    };
    return place(move.record.a) + between + place(move.record.b);
}

/// What the move did: "1 to 2" bridges, or to a mark.
std::string ChangeText(const PlayedMove& move) {
    if (move.after == kMarked) return "no bridge";
    if (move.after == kUnmarked) return "mark taken away";
    return NumText(std::max(move.record.state, 0)) + " to " + NumText(std::max(move.after, 0));
}

}  // namespace

std::vector<HistoryLine> HistoryLines(const History& history) {
    using Kind = HistoryLine::Kind;
    std::vector<HistoryLine> lines;
    int checkpoint = 0;
    for (int moment = 0; moment <= history.Count(); ++moment) {
        const bool isAhead = moment > history.Done();
        if (moment > 0) {
            const PlayedMove& move = history.Moves()[static_cast<std::size_t>(moment) - 1];
            if (move.ChangedAnything()) lines.push_back({Kind::Move, moment, move, 0, isAhead});
        }
        if (std::binary_search(history.Checkpoints().begin(), history.Checkpoints().end(), moment))
            lines.push_back({Kind::Checkpoint, moment, {}, ++checkpoint, isAhead});
    }
    if (!lines.empty()) lines.insert(lines.begin(), {Kind::Beginning, 0, {}, 0, false});
    std::reverse(lines.begin(), lines.end());
    return lines;
}

std::string Text(const HistoryLine& line, const Puzzle& puzzle) {
    if (line.kind == HistoryLine::Kind::Beginning) return "Beginning";
    if (line.kind == HistoryLine::Kind::Checkpoint) return "Checkpoint " + NumText(line.number);
    return PairText(line.move, puzzle, "R", "C", " - ") + ": " + ChangeText(line.move);
}

std::string SpokenText(const HistoryLine& line, const Puzzle& puzzle) {
    const std::string ahead = line.isAhead ? "taken back: " : "";
    if (line.kind != HistoryLine::Kind::Move) return ahead + Text(line, puzzle);
    return ahead + PairText(line.move, puzzle, "row ", ", column ", " to ") + ": " + ChangeText(line.move);
}

}  // namespace tidewalk
