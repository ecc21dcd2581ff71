// SPDX-License-Identifier: MIT
// The collection that ships, as it lies in the data folder.
#include <gtest/gtest.h>

#include <set>

#include "model/collection_file.h"
#include "solver/count_solutions.h"
#include "solver/solve_puzzle.h"
#include "support/layout_checker.h"

namespace tidewalk::test {
namespace {

TEST(ShippedCollection, EveryPuzzleIsValidHasOneSolutionAndIsSolved) {
    const std::string path = TIDEWALK_DATA_DIR "/puzzles.txt";
    const int count = CountLines(path);
    EXPECT_GE(count, 120);
    std::set<std::string> records;
    std::set<std::pair<int, int>> sizes;
    SolverBoard board;
    int choices = 0;
    for (int number = 1; number <= count; ++number) {
        std::string record;
        ASSERT_TRUE(ReadCollectionLine(path, number, record));
        const auto puzzle = ReadPuzzle(path, number);
        ASSERT_TRUE(puzzle) << "line " << number;
        ASSERT_EQ(FaultOfRecord(record, puzzle->Size()), "") << "line " << number;
        ASSERT_EQ(CountSolutionsWhile(*puzzle, 2, [&] { return ++choices > 0; }), 1) << "line " << number;
        EXPECT_TRUE(records.insert(record).second) << "line " << number << " is there twice";
        sizes.insert({puzzle->Rows, puzzle->Cols});
        board.Reset(*puzzle);
        EXPECT_TRUE(SolvePuzzle(board, {}, WithoutEnd).Solved()) << "line " << number;
        EXPECT_EQ(ParsePuzzleRecord(PuzzleRecord(PuzzleOf(board))), puzzle) << "line " << number;
    }
    EXPECT_EQ(choices, 99) << "counting takes the shortest way that it knows";
    EXPECT_TRUE(sizes.count({7, 7}) == 1 && sizes.count({25, 25}) == 1);
    EXPECT_TRUE(sizes.count({7, 25}) == 1 && sizes.count({25, 10}) == 1);
}

}  // namespace
}  // namespace tidewalk::test
