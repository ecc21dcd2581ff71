// SPDX-License-Identifier: MIT
// The readers of the engine.
#include <algorithm>
#include <sstream>

#include "fuzz/targets.h"
#include "model/collection_file.h"
#include "model/convert_layout.h"
#include "model/grid_reader.h"
#include "model/plain_grid.h"
#include "model/puzzle_record.h"
#include "solver/count_solutions.h"
#include "solver/solve_puzzle.h"
#include "solver/valid_solution.h"
#include "support/temp_folder.h"

namespace tidewalk::fuzz {

namespace {

bool IsOnBoard(const Puzzle& puzzle, const Link& link) {
    const auto isCell = [&](CellNumber id) { return id >= 1 && id <= puzzle.CellCount(); };
    return isCell(link.first) && isCell(link.second) && puzzle.IslandAt(link.first) > 0 && link.state < 2 &&
           (puzzle.CellRow(link.first) == puzzle.CellRow(link.second)) !=
               (puzzle.CellCol(link.first) == puzzle.CellCol(link.second));
}

/// What was read is a puzzle, and its record gives the same one again.
void DemandWhole(const Puzzle& puzzle) {
    Demand(puzzle.Rows >= 1 && puzzle.Rows <= kMaxSide && puzzle.Cols >= 1 && puzzle.Cols <= kMaxSide, "its size");
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
        Demand(puzzle.IslandAt(id) <= 9, "a number");
    Demand(std::all_of(puzzle.LinkList.begin(), puzzle.LinkList.end(),
                       [&](const Link& link) { return IsOnBoard(puzzle, link); }),
           "a bridge that leads nowhere");
    const auto again = ParsePuzzleRecord(PuzzleRecord(puzzle));
    Demand(again && WithoutLinks(*again) == WithoutLinks(puzzle), "a record of our own gives other numbers");
    // Bridges over islands have no form in a record, so only a solution has to come back as it was.
    Demand(!IsValidSolution(puzzle) || IsValidSolution(*again), "a solution does not come back");
}

/// The solver and the count of solutions do not contradict each other.
void DemandOneAnswer(const Puzzle& puzzle) {
    constexpr int kMostTrials = 300;
    SolverBoard board(puzzle);
    const SolveResult result = SolvePuzzle(board, {1, kMostTrials}, WithoutEnd);
    if (puzzle.IslandCount() == 0) return;
    Demand(!result.Solved() || IsValidSolution(PuzzleOf(board)), "the solver's solution is none");
    const auto count = CountSolutions(puzzle, 1, kMostTrials);
    if (result.trials < kMostTrials && count) Demand(result.Solved() == (*count == 1), "solved without a solution");
}

/// The grids of a text come one behind the other, and not one more than it has lines.
void DemandInOrder(const std::string& bytes) {
    std::stringbuf source(bytes);
    GridReader reader(source, "bytes");
    const auto lines = 1 + std::count(bytes.begin(), bytes.end(), '\n');
    std::int64_t last = 0;
    for (FoundGrid grid; reader.Next(grid); last = grid.line) {
        Demand(grid.line > last && grid.line <= lines, "a grid without a line of its own");
        Demand(!grid.isPuzzle || (grid.fits && grid.puzzle.IslandCount() > 0), "a puzzle out of nothing");
    }
}

}  // namespace

void ReadCollection(std::string_view bytes) {
    constexpr int kMost = 2;
    const test::TempFolder folder;
    const std::string path = folder.Write("collection.tdw", std::string(bytes));
    const int count = CountLines(path);
    for (int number = 0; number <= std::min(count, kMost) + 1; ++number) {
        const auto puzzle = ReadPuzzle(path, number);
        if (!puzzle) continue;
        Demand(number >= 1 && number <= count, "a puzzle comes from no line");
        DemandWhole(*puzzle);
        DemandOneAnswer(*puzzle);
    }
}

void ReadGrid(std::string_view bytes) {
    constexpr int kMost = 3;
    const test::TempFolder folder;
    const std::string path = folder.Write("grid.txt", std::string(bytes));
    for (int number = 0; number <= kMost; ++number) {
        FoundGrid grid;
        if (ReadGridFrom(path, number, grid) != GridResult::Read) continue;
        const Puzzle& puzzle = grid.puzzle;
        Demand(number >= 1 && puzzle.CellCount() >= 1 && puzzle.LinkCount() == 0, "a grid out of nothing");
        // What is written is a grid that the reader takes without a change.
        for (const std::string& text : {MarkedGrid(puzzle), GridText(puzzle, GridForm::Plain),
                                        GridText(puzzle, GridForm::Spaced), GridText(puzzle, GridForm::Sized)}) {
            FoundGrid again;
            const std::string written = folder.Write("again.grd", text);
            Demand(ReadGridFrom(written, 1, again) == GridResult::Read, "a grid of our own is not read");
            Demand(again.puzzle == puzzle, "a grid of our own comes back as another");
        }
    }
    DemandInOrder(std::string(bytes));
}

void ReadOldLayout(std::string_view bytes) {
    const test::TempFolder folder;
    const std::string from = folder.Write("old.txt", std::string(bytes));
    const std::string to = folder.Path("old-newformat.txt");
    ConvertCollection(from, to);
    // A puzzle of the older layout takes its kind, its header and an end; what is read is none of its business.
    const int records = CountLines(to);
    Demand(records <= CountLines(from) / 2, "more puzzles than there can be");
    for (int number = 1; number <= records && number <= 3; ++number)
        ReadPuzzle(to, number);
}

}  // namespace tidewalk::fuzz
