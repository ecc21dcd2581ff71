// SPDX-License-Identifier: MIT
// The collection that ships, as it lies in the data folder.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "model/load_puzzle.h"
#include "solver/count_solutions.h"
#include "solver/valid_solution.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(ShippedCollection, EveryPuzzleIsValidAndHasOneSolution) {
    TestGame game;
    game.CollectionPath = TIDEWALK_DATA_DIR "/puzzles.txt";
    const int count = CountLines(game, game.CollectionPath);
    EXPECT_GE(count, 120);
    std::ifstream file(game.CollectionPath, std::ios::binary);
    std::set<std::string> records;
    std::set<std::pair<int, int>> sizes;
    std::string line;
    for (int number = 1; number <= count; ++number) {
        std::getline(file, line);
        ASSERT_EQ(line.back(), '\r') << "line " << number;
        line.pop_back();
        ASSERT_EQ(game.Load(number), 0);
        ASSERT_EQ(FaultOfRecord(line, game.Rows, game.Cols), "") << "line " << number;
        ASSERT_TRUE(IsValidSolution(game)) << "line " << number;
        ASSERT_EQ(CountSolutions(game.IslandGrid, game.Rows, game.Cols, 2), 1) << "line " << number;
        EXPECT_TRUE(records.insert(line).second) << "line " << number << " is there twice";
        sizes.insert({game.Rows, game.Cols});
    }
    EXPECT_TRUE(sizes.count({7, 7}) == 1 && sizes.count({25, 25}) == 1);
    EXPECT_TRUE(sizes.count({7, 25}) == 1 && sizes.count({25, 10}) == 1);
}

}  // namespace
}  // namespace tidewalk::test
