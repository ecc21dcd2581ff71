// SPDX-License-Identifier: MIT
// Counting and judging solutions, each against the other.
#include "solver/count_solutions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "generator/create_puzzle.h"
#include "solver/clauses.h"
#include "solver/difficulty.h"
#include "solver/solver_board.h"
#include "solver/valid_solution.h"
#include "support/board_text.h"
#include "support/random_boards.h"

namespace tidewalk::test {
namespace {

TEST(CountSolutions, BoardsWithNoneOneAndSeveral) {
    EXPECT_EQ(CountSolutions(PuzzleFrom({"3.3", "...", "3.3"}), 100), 2);
    EXPECT_EQ(CountSolutions(PuzzleFrom({"2.2", "...", "2.2"}), 100), 1) << "a ring, but no two groups";
    EXPECT_EQ(CountSolutions(PuzzleFrom({"...", "..."}), 100), 0);
    EXPECT_EQ(CountSolutions(PuzzleFrom({"9.9"}), 100), 0);
}

TEST(CountSolutions, StopsAtTheLimitAndSaysWhenItCannotTell) {
    const Puzzle ring = PuzzleFrom({"3.3", "...", "3.3"});
    EXPECT_EQ(CountSolutions(ring, 1), 1);
    EXPECT_EQ(CountSolutions(ring, 2, 0), std::nullopt);
    int asked = 0;
    EXPECT_EQ(CountSolutionsWhile(ring, 9, [&] { return ++asked > 0; }), 2);
    EXPECT_EQ(CountSolutions(ring, 9, asked), 2) << "a step a choice";
    EXPECT_EQ(CountSolutions(ring, 9, asked - 1), std::nullopt);
}

/// How many choices of bridges from link `from` on make the puzzle a valid solution.
int TryEverything(Puzzle& puzzle, std::size_t from) {
    if (from == puzzle.LinkList.size()) return IsValidSolution(puzzle) ? 1 : 0;
    int count = 0;
    for (const int state : {0, 1, 2}) {
        puzzle.LinkList[from].state = static_cast<std::uint8_t>(state);
        count += TryEverything(puzzle, from + 1);
    }
    return count;
}

TEST(CountSolutions, AgreesWithJudgingEveryChoiceOnSmallBoards) {
    std::mt19937 random(7);
    int solvable = 0;
    int several = 0;
    for (int board = 0; board < 2000; ++board) {
        const BoardSize size{3 + static_cast<int>(random() % 3), 3 + static_cast<int>(random() % 3)};
        Puzzle puzzle = MakeRandomPuzzle(random, size, 4, board % 3 == 0);
        for (const Link& link : SolverBoard(puzzle).LinkList.Links()) {
            if (link.first < link.second) puzzle.LinkList.push_back(link);
        }
        if (puzzle.LinkCount() > 9) continue;
        const int expected = puzzle.IslandCount() == 0 ? 0 : TryEverything(puzzle, 0);
        solvable += expected > 0;
        several += expected > 1;
        ASSERT_EQ(CountSolutions(puzzle, 1000), expected) << "board " << board;
    }
    EXPECT_GT(solvable, 100);
    EXPECT_GT(several, 20);
    EXPECT_LT(solvable, 2000);
}

TEST(FindSolutions, LearnsFromDeadEndsOnCrowdedBoards) {
    constexpr int kLimit = 60;
    constexpr int kMostChoices = 20000;
    std::mt19937 random(5);
    int several = 0;
    int none = 0;
    for (int round = 0; round < 60; ++round) {
        const Puzzle puzzle = MakeRandomPuzzle(random, {12, 12}, round % 3 + 1, round % 2 == 0);
        const Archipelago board(puzzle);
        const auto found = FindSolutions(board, kLimit, [choices = 0]() mutable { return ++choices < kMostChoices; });
        ASSERT_TRUE(found) << "board " << round;
        std::set<std::string> different;
        for (const SpanBridges& bridges : *found)
            different.insert(std::string(bridges.begin(), bridges.end()));
        EXPECT_EQ(different.size(), found->size()) << "one twice";
        EXPECT_TRUE(std::all_of(found->begin(), found->end(), [&](const SpanBridges& bridges) {
            return IsValidSolution(WithBridges(puzzle, board, bridges));
        }));
        several += found->size() == kLimit;
        none += found->empty();
    }
    EXPECT_GT(several, 10);
    EXPECT_GT(none, 10);
}

Puzzle Turned(const Puzzle& puzzle) {
    Puzzle turned({puzzle.Cols, puzzle.Rows});
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (puzzle.IslandAt(id) > 0)
            turned.SetIsland(turned.CellId(puzzle.CellCol(id), puzzle.CellRow(id)), puzzle.IslandAt(id));
    }
    return turned;
}

TEST(CountSolutions, OfABoardTurnedIsTheSame) {
    // What is learned depends on the order of the spans, and a wrong lesson loses solutions.
    constexpr int kLimit = 3000;
    RandomSource random(9);
    SolverBoard solver;
    int many = 0;
    for (int round = 0; round < 400; ++round) {
        const Puzzle puzzle = CreatePuzzle(solver, {13 + round % 12, 14}, random, WithoutEnd).puzzle;
        const auto count = CountSolutions(puzzle, kLimit);
        ASSERT_EQ(count, CountSolutions(Turned(puzzle), kLimit)) << "board " << round;
        many += *count > 4 && *count < kLimit;
    }
    EXPECT_GT(many, 20);
}

TEST(Clauses, DropTheWiderSpreadHalfOfWhatIsNotKeptForGood) {
    constexpr int kClauses = 20;
    Clauses clauses(kClauses + 1);
    // "Span 0 is bridged, or span n is", spread over n levels.
    for (int span = kClauses; span > 0; --span)
        clauses.Add({Literal::AtLeast(0, 1), Literal::AtLeast(span, 1)}, span);
    clauses.DropWorst();
    BoundTrail trail(kClauses + 1);
    trail.Assert(Literal::Below(0, 1), {});
    EXPECT_EQ(clauses.Propagate(Literal::AtLeast(0, 1), trail), -1);
    for (int span = 1; span <= kClauses; ++span)
        EXPECT_EQ(trail.Low(span), span <= 11 ? 1 : 0) << span;
}

TEST(ValidSolution, JudgesNumbersAndGroups) {
    EXPECT_TRUE(IsValidSolution(PuzzleFrom({"2=4", "..I", "..2"})));
    EXPECT_FALSE(IsValidSolution(PuzzleFrom({"2-4", "..I", "..2"}))) << "a number";
    EXPECT_FALSE(IsValidSolution(PuzzleFrom({"1-1", "...", "1-1"}))) << "two groups";
    EXPECT_FALSE(IsValidSolution(PuzzleFrom({"1-.", "...", "..."}))) << "a bridge that ends in the water";
    EXPECT_TRUE(CheckLinkTotals(PuzzleFrom({"1-1", "...", "1-1"})));
    EXPECT_FALSE(CheckLinkTotals(PuzzleFrom({"1.1"})));
}

TEST(ValidSolution, JudgesTheWayOfEveryBridge) {
    const auto judge = [](const Rows& rows, const std::vector<Link>& links) {
        Puzzle puzzle = PuzzleFrom(rows);
        puzzle.LinkList = links;
        EXPECT_TRUE(CheckLinkTotals(puzzle)) << "what is judged is not a number";
        return IsValidSolution(puzzle);
    };
    EXPECT_TRUE(judge({"2.2", "...", "2.2"}, {{3, 1, 1}, {9, 3, 1}, {7, 9, 1}, {1, 7, 1}})) << "in any order";
    EXPECT_TRUE(judge({"1.1", "..."}, {{1, 3, 1}, {2, 5, 2}})) << "a link without a bridge is none";
    EXPECT_FALSE(judge({"2.2", "...", "2.."}, {{1, 3, 1}, {1, 7, 1}, {3, 7, 1}})) << "a slanting bridge";
    EXPECT_FALSE(judge({"22.", "2.1", ".1."}, {{1, 2, 1}, {1, 4, 1}, {2, 8, 1}, {4, 6, 1}})) << "a crossing";
    EXPECT_FALSE(judge({"1.1.2", ".....", "..2.2"}, {{1, 5, 1}, {5, 15, 1}, {13, 15, 1}, {3, 13, 1}})) << "an island";
    EXPECT_FALSE(judge({"2.2"}, {{1, 3, 1}, {3, 1, 1}})) << "the same way twice";
    EXPECT_FALSE(judge({"3.1"}, {{1, 3, 1}, {1, 1, 1}})) << "from a cell to itself";
    EXPECT_FALSE(judge({"2.1", "..."}, {{1, 3, 1}, {1, 4, 1}})) << "into the water";
    EXPECT_FALSE(judge({"...", "1.2"}, {{4, 6, 1}, {3, 6, 1}})) << "out of the water";
    EXPECT_FALSE(judge({"1.1"}, {{1, 3, 1}, {0, 600, 1}})) << "off the board";
}

TEST(ValidSolution, TellsWhenOnlyBridgesBetweenTouchingIslandsAreMissing) {
    for (const Rows& rows : {Rows{"11"}, {"1", "1"}, {"12", ".1"}, {"22", "22"}, {"2=31"}, {"2=4", "..I", ".24"}})
        EXPECT_TRUE(LacksOnlyTouchingBridges(PuzzleFrom(rows))) << rows.front();
    for (const Rows& rows : {Rows{"1-1"}, {"1.1"}, {"2-31"}, {"33"}, {"13"}, {"1=21"}, {"11", "11"}, {".1", "1."}})
        EXPECT_FALSE(LacksOnlyTouchingBridges(PuzzleFrom(rows))) << rows.front();
}

TEST(Difficulty, HasFourNames) {
    const std::pair<int, std::string_view> cases[] = {{0, "VEasy"}, {1, "Easy"},  {5, "Easy"},
                                                      {6, "Hard"},  {10, "Hard"}, {11, "VHard"}};
    for (const auto& [score, name] : cases)
        EXPECT_EQ(DifficultyName(score), name) << score;
}

}  // namespace
}  // namespace tidewalk::test
