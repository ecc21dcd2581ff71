// SPDX-License-Identifier: MIT
#include "cli/puzzle_facts.h"

#include "solver/valid_solution.h"

namespace tidewalk {

PuzzleFacts FactsOf(const Puzzle& puzzle) {
    PuzzleFacts facts;
    facts.islands = IslandCount(puzzle);
    for (int i = 1; i <= puzzle.LinkCount(); ++i)
        facts.bridges += 2 - puzzle.LinkList[i].state;
    facts.solution = puzzle.LinkCount() == 0 ? "none" : IsValidSolution(puzzle) ? "valid" : "wrong";
    return facts;
}

int IslandCount(const Puzzle& puzzle) {
    int islands = 0;
    for (CellNumber id = 1; id <= puzzle.CellCount; ++id) {
        if (puzzle.IslandAt(id) > 0) ++islands;
    }
    return islands;
}

std::string SizeText(const Puzzle& puzzle) {
    return std::to_string(puzzle.Rows) + "x" + std::to_string(puzzle.Cols);
}

std::string LineStart(int number, const Puzzle& puzzle) {
    constexpr int kNumberWidth = 6;
    constexpr int kSizeWidth = 5;
    return Padded(std::to_string(number), kNumberWidth) + "  " + Padded(SizeText(puzzle), kSizeWidth);
}

void AddSize(Json& object, const Puzzle& puzzle) {
    object["rows"] = puzzle.Rows;
    object["cols"] = puzzle.Cols;
}

}  // namespace tidewalk
