// SPDX-License-Identifier: MIT
// Judging what was created.
#pragma once

#include <string>

#include "model/puzzle_record.h"
#include "solver/valid_solution.h"

namespace tidewalk::test {

/// "" for islands as they are grown: at least two, none beside another. Otherwise what is wrong.
inline std::string FaultOfLayout(const Puzzle& puzzle) {
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const auto [row, col] = puzzle.PlaceOf(id);
        if (puzzle.IslandAt(id) > 8) return "an island of " + std::to_string(puzzle.IslandAt(id));
        if (puzzle.IslandAt(id) == 0 ||
            (puzzle.IslandGrid(row + 1, col) == 0 && puzzle.IslandGrid(row, col + 1) == 0)) {
            continue;
        }
        return "islands that touch";
    }
    return puzzle.IslandCount() >= 2 ? "" : "no islands";
}

/// The same for a record whose bridges have to solve it and which has to be written as the program writes it.
inline std::string FaultOfRecord(const std::string& record, BoardSize size) {
    const auto puzzle = ParsePuzzleRecord(record);
    if (!puzzle || puzzle->Size() != size) return "no puzzle of this size";
    const auto fields = [](const std::string& text) { return text.substr(text.find(';')); };
    if (fields(PuzzleRecord(*puzzle)) != fields(record)) return "another form";
    return IsValidSolution(*puzzle) ? FaultOfLayout(*puzzle) : "bridges that solve nothing";
}

}  // namespace tidewalk::test
