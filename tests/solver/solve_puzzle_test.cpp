// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include <gtest/gtest.h>

#include <random>

#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "solver/connect_islands.h"
#include "solver/count_solutions.h"
#include "solver/neighbours.h"
#include "solver/valid_solution.h"
#include "support/plain_solver.h"
#include "support/random_boards.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

std::vector<std::string> LinkTexts(const Game& game) {
    std::vector<std::string> texts;
    for (int i = 1; i <= game.LinkCount(); ++i)
        texts.push_back(Text(game.LinkList[i]));
    return texts;
}

TEST(SolvePuzzle, DoesTheSameAsThePlainSolver) {
    TestGame game;
    std::mt19937 random(20);
    int solvedBoards = 0;
    int searchedBoards = 0;
    for (int round = 0; round < 150; ++round) {
        const int rows = 3 + static_cast<int>(random() % 8);
        const int cols = 3 + static_cast<int>(random() % 8);
        MakeRandomBoard(game, random, rows, cols, 2 + static_cast<int>(random() % 4), round % 5 == 0);
        PlainSolver plain(game.GivenGrid, rows, cols);
        constexpr int kMostTrials = 60;
        game.TrialLimit = kMostTrials;
        int trials = 0;
        const bool solved = SolvePuzzle(game, 1, trials) == 0;
        ASSERT_EQ(solved, plain.Solve(1, kMostTrials)) << "board " << round;
        ASSERT_EQ(trials, plain.trials) << "board " << round;
        ASSERT_EQ(LinkTexts(game), plain.links) << "board " << round;
        ASSERT_EQ(solved && !IsValidSolution(game), false) << "board " << round;
        solvedBoards += solved;
        searchedBoards += trials > 0;
    }
    EXPECT_GT(solvedBoards, 25);
    EXPECT_GT(searchedBoards, 25);
}

/// What the tables say about every island agrees with the bridges that the links carry.
void ExpectTablesOfASolution(const TestGame& game) {
    PerCell<int> joined;
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link& link = game.LinkList[i];
        if (link.state == 2) continue;
        ++joined[link.first];
        ++joined[link.second];
        ASSERT_TRUE(game.ConnectedList[link.first].Contains(link.second));
        const bool sameRow = game.CellRow[link.first] == game.CellRow[link.second];
        const int step = sameRow ? 1 : game.Cols;
        for (CellNumber id = link.first + step; id < link.second; id += step)
            ASSERT_EQ(game.CrossGrid(game.CellRow[id], game.CellCol[id]), sameRow ? Cross::H : Cross::V);
    }
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const auto [row, col] = game.PlaceOf(id);
        ASSERT_EQ(game.IslandGrid(row, col), game.GivenGrid(row, col)) << "water is -1 in both";
        ASSERT_EQ(game.ConnectedList[id].Count(), joined[id]);
        ASSERT_TRUE(game.OpenNeighbours(row, col).Empty());
    }
    ASSERT_TRUE(game.List1.Lines().empty());
}

TEST(SolvePuzzle, SolvesExactlyWhatHasASolution) {
    TestGame game;
    std::mt19937 random(77);
    int solvable = 0;
    int unsolvable = 0;
    // To refuse a board takes a search through all choices: the few boards that need very many are passed over.
    constexpr int kMostTrials = 1000;
    game.TrialLimit = kMostTrials;
    for (int round = 0; round < 2000; ++round) {
        const int rows = 2 + static_cast<int>(random() % 8);
        const int cols = 2 + static_cast<int>(random() % 8);
        MakeRandomBoard(game, random, rows, cols, 2 + static_cast<int>(random() % 4), round % 3 == 0);
        const auto solutions = CountSolutions(game.GivenGrid, rows, cols, 1);
        if (!solutions) continue;
        int trials = 0;
        const bool solved = SolvePuzzle(game, 1, trials) == 0;
        if (game.sights.islandCount == 0 || trials == kMostTrials) continue;
        ASSERT_EQ(solved, *solutions == 1) << "board " << round;
        if (solved) {
            ASSERT_TRUE(IsValidSolution(game)) << "board " << round;
            ExpectTablesOfASolution(game);
            if (HasFatalFailure()) return;
        }
        solvable += solved;
        unsolvable += !solved;
    }
    EXPECT_GT(solvable, 300);
    EXPECT_GT(unsolvable, 300);
}

TEST(SolvePuzzle, AfterAFailureTheWorkListTellsWhatIsMissing) {
    TestGame game({Record({"1.2.2", ".....", "..1.3"})});
    ASSERT_EQ(game.Load(1), 0);
    game.List2.Add("a choice point of an earlier puzzle");
    int trials = 0;
    ASSERT_EQ(SolvePuzzle(game, 0, trials), 1);
    ASSERT_FALSE(game.List1.Lines().empty());
    for (const std::string& line : game.List1.Lines()) {
        const int island = RoundedVal(std::string_view(line).substr(13, 3));
        EXPECT_EQ(line.front() - '0', game.IslandAt(island)) << line;
    }
    EXPECT_TRUE(game.List2.Lines().empty());
}

TEST(RefreshNeighbours, AfterEachBridgeGivesWhatAFullRebuildGives) {
    TestGame game;
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        MakeRandomBoard(game, random, 4 + static_cast<int>(random() % 9), 4 + static_cast<int>(random() % 9), 3, false);
        BuildNeighbourLists(game);
        RefreshNeighbours(game);
        const auto before = game.OpenNeighbours;
        game.laid.clear();
        for (int i = 0; i < 30 && game.LinkCount() > 0; ++i) {
            const Link link = game.LinkList[1 + static_cast<int>(random() % game.LinkCount())];
            // A bridge across another one is never asked for.
            if (!game.OpenNeighbours(game.CellRow[link.first], game.CellCol[link.first]).Contains(link.second))
                continue;
            ConnectIslands(game, "test", link.first, link.second, 1 + static_cast<int>(random() % 2));
            RefreshStaleLists(game);
            const auto stepwise = game.OpenNeighbours;
            RefreshNeighbours(game);
            ASSERT_EQ(stepwise, game.OpenNeighbours) << "board " << round;
        }
        TakeBackBridges(game, 0);
        ASSERT_EQ(game.OpenNeighbours, before) << "board " << round;
        ASSERT_EQ(game.CrossGrid, Grid<Cross>()) << "board " << round;
        ASSERT_EQ(game.BridgesLaid, 0);
        game.CrossGrid.Fill(Cross::Free);
        for (CellNumber id = 1; id <= game.CellCount; ++id)
            ASSERT_TRUE(game.ConnectedList[id].Empty());
    }
}

/// Solves the numbers of these rows; the links with bridges, or "failed".
std::string Solve(const std::vector<std::string>& rows, int limit, int& trials) {
    TestGame game({Record(rows)});
    EXPECT_EQ(game.Load(1), 0);
    if (SolvePuzzle(game, limit, trials) != 0) return "failed";
    std::string text;
    for (int i = 1; i <= game.LinkCount(); ++i) {
        if (game.LinkList[i].state < 2) text += Text(game.LinkList[i]) + " ";
    }
    EXPECT_TRUE(IsValidSolution(game));
    return text;
}

TEST(SolvePuzzle, RulesAloneNeedNoTrial) {
    int trials = 99;
    EXPECT_EQ(Solve({"1.2.1"}, 0, trials), "0010031 0030051 ");
    EXPECT_EQ(trials, 0);
}

TEST(SolvePuzzle, OfTwoSolutionsTheFirstMoveOfTheFirstLineWins) {
    int trials = 0;
    // A square of threes: double on top and bottom, or on the sides. Island 1 first takes one to its right, then
    // another.
    EXPECT_EQ(Solve({"3.3", "...", "3.3"}, 9, trials), "0010030 0010071 0030091 0070090 ");
    EXPECT_GE(trials, 1);
    EXPECT_EQ(Solve({"3.3", "...", "3.3"}, 0, trials), "failed") << "a search was needed and not allowed";
}

TEST(SolvePuzzle, NeverReportsWhatIsNoSolution) {
    int trials = 0;
    EXPECT_EQ(Solve({"1.1", "...", "1.1"}, 9, trials), "failed") << "two groups";
    EXPECT_EQ(Solve({"2.2", "...", "2.2"}, 9, trials), "0010031 0010071 0030091 0070091 ") << "one ring, not two pairs";
    EXPECT_EQ(Solve({"1"}, 9, trials), "failed");
    EXPECT_EQ(Solve({"9.9"}, 9, trials), "failed");
    EXPECT_EQ(Solve({"3.1"}, 9, trials), "failed");
    EXPECT_EQ(Solve({".1.", "1.1", ".1."}, 9, trials), "failed") << "only by crossing";
}

TEST(SolvePuzzle, CancelEndsItAtTheNextLook) {
    TestGame game({Record({"3.3", "...", "3.3"})});
    ASSERT_EQ(game.Load(1), 0);
    game.clock.step = 50;
    game.events.happen = [&] { game.CancelFlag = YesValue; };
    int trials = 0;
    EXPECT_EQ(SolvePuzzle(game, 9, trials), 1);
    EXPECT_EQ(game.events.count, 1);
    EXPECT_EQ(game.BridgesLaid, 0);
}

TEST(ValidSolution, JudgesNumbersCrossingsAndGroups) {
    const auto valid = [](const std::vector<std::string>& rows) {
        TestGame game({Record(rows)});
        EXPECT_EQ(game.Load(1), 0);
        return IsValidSolution(game);
    };
    EXPECT_TRUE(valid({"2=4", "..I", "..2"}));
    EXPECT_FALSE(valid({"2-4", "..I", "..2"})) << "a number";
    EXPECT_FALSE(valid({"1-1", "...", "1-1"})) << "two groups";
    EXPECT_FALSE(valid({"1-.", "...", "..."})) << "a bridge that ends in water";
    EXPECT_FALSE(valid({"1.1"})) << "no bridges";
}

}  // namespace
}  // namespace tidewalk::test
