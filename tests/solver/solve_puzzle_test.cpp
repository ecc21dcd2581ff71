// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "model/numbers.h"
#include "solver/count_solutions.h"
#include "solver/status_list.h"
#include "solver/trial_search.h"
#include "solver/valid_solution.h"
#include "support/board_text.h"
#include "support/random_boards.h"

namespace tidewalk::test {
namespace {

constexpr SolveBounds kNoBounds{};

/// A number for the links of a board and every step that led there.
std::uint32_t TraceOf(const SolverBoard& board) {
    std::string trace;
    for (const Link& link : board.LinkList.Links())
        trace += Text(link);
    for (const LaidBridges& laid : board.laid)
        trace += Label(laid) + Text(MakeLink(laid.a, laid.b, laid.bridges));
    return Hash(trace) & 0xFFFFU;
}

TEST(SolvePuzzle, GoesTheSameWayOnBoardsOfEverySize) {
    constexpr int kMostTrials = 500;
    // Rows, columns, spacing, seed, whether it is solved, trials, trace.
    const std::tuple<int, int, int, unsigned, bool, int, std::uint32_t> pins[] = {
        // clang-format off
        {2, 2, 2, 2777, 1, 0, 0xc771}, {2, 2, 2, 8779, 1, 3, 0xc6d1}, {2, 2, 2, 4415, 0, 4, 0x2139},
        {3, 3, 2, 10253, 1, 0, 0xc8f1}, {3, 3, 2, 7691, 1, 8, 0x8e49}, {3, 3, 2, 6725, 0, 26, 0xfe29},
        {4, 4, 2, 9791, 1, 0, 0x2ef0}, {4, 4, 2, 24531, 1, 19, 0xa7d3}, {3, 4, 2, 19110, 0, 67, 0xc224},
        {5, 5, 2, 8359, 1, 0, 0x202d}, {5, 5, 2, 11134, 1, 77, 0xae14}, {5, 5, 2, 25284, 0, 321, 0xd325},
        {6, 6, 2, 17813, 1, 0, 0x3101}, {6, 6, 2, 20291, 1, 235, 0xfe2a}, {5, 6, 2, 23650, 0, 316, 0x096f},
        {7, 7, 2, 11973, 1, 0, 0x0d53}, {7, 7, 2, 5424, 1, 491, 0x85c8}, {7, 7, 2, 10335, 0, 428, 0x9328},
        {8, 8, 2, 26967, 1, 0, 0x9d86}, {8, 8, 2, 9324, 1, 486, 0xe2e9}, {8, 8, 2, 15000, 0, 310, 0x30fb},
        {9, 9, 2, 23103, 1, 0, 0x4207}, {9, 9, 2, 16176, 1, 491, 0xd604}, {9, 9, 2, 18189, 0, 320, 0x5da1},
        {10, 10, 3, 10593, 1, 0, 0x4514}, {10, 10, 2, 14579, 1, 499, 0x0c39}, {10, 10, 2, 20460, 0, 406, 0xe491},
        {8, 11, 2, 8404, 1, 0, 0x1717}, {11, 11, 2, 7523, 1, 492, 0x8577}, {11, 11, 2, 5340, 0, 348, 0x7a20},
        {11, 12, 3, 20084, 1, 0, 0x621c}, {12, 12, 2, 1644, 1, 490, 0x4b2f}, {12, 12, 2, 15036, 0, 372, 0xb36c},
        {13, 13, 4, 1403, 1, 0, 0x6823}, {13, 13, 2, 4327, 1, 487, 0x7192}, {13, 13, 2, 24780, 0, 340, 0xc699},
        {14, 14, 4, 14799, 1, 0, 0xe5e8}, {14, 14, 2, 28434, 1, 499, 0xf023}, {14, 14, 2, 2103, 0, 390, 0x6d8e},
        {15, 15, 4, 22527, 1, 0, 0x4510}, {15, 15, 2, 12603, 1, 492, 0x2f74}, {15, 15, 2, 20373, 0, 406, 0xda62},
        {15, 15, 2, 27390, 0, 500, 0xef38}, {12, 16, 4, 24754, 1, 0, 0x7794}, {16, 16, 2, 24948, 1, 485, 0x538e},
        {16, 16, 2, 18570, 0, 410, 0x2111}, {17, 17, 3, 6354, 1, 0, 0x06db}, {17, 17, 3, 12609, 1, 460, 0xcb1f},
        {17, 17, 2, 24786, 0, 340, 0xcbe1}, {10, 18, 3, 14122, 1, 0, 0xb37e}, {16, 18, 3, 23698, 1, 497, 0x293a},
        {18, 18, 2, 8106, 0, 334, 0x103f}, {14, 19, 4, 10642, 1, 0, 0xd819}, {19, 19, 4, 12196, 1, 498, 0x55e9},
        {19, 19, 2, 14202, 0, 454, 0x2087}, {20, 20, 5, 20937, 1, 0, 0x6c89}, {20, 20, 4, 7659, 1, 479, 0x16f1},
        {20, 20, 2, 1476, 0, 328, 0x0ccb}, {20, 20, 2, 21299, 0, 500, 0x16be}, {21, 21, 6, 10908, 1, 0, 0xdd1e},
        {21, 16, 5, 24049, 1, 363, 0x8a24}, {21, 21, 2, 4158, 0, 494, 0xf7d4}, {19, 22, 7, 16754, 1, 0, 0xb44e},
        {22, 16, 3, 14039, 1, 309, 0x0f68}, {22, 22, 2, 18018, 0, 312, 0xb2da}, {6, 23, 3, 5468, 1, 0, 0x617d},
        {22, 23, 3, 29872, 1, 194, 0x3691}, {23, 23, 2, 7398, 0, 386, 0xc562}, {24, 7, 4, 8587, 1, 0, 0x466c},
        {24, 13, 3, 16093, 1, 457, 0x1afc}, {24, 24, 2, 10799, 0, 456, 0x60f5}, {25, 7, 5, 2419, 1, 0, 0xa104},
        {25, 19, 3, 24581, 1, 123, 0x4313}, {25, 25, 2, 5844, 0, 370, 0x3ecd}, {25, 25, 2, 15504, 0, 500, 0x2ea7},
        // clang-format on
    };
    SolverBoard board;
    for (const auto& [rows, cols, spacing, seed, solved, trials, trace] : pins) {
        std::mt19937 random(seed);
        board.Reset(MakeRandomPuzzle(random, {rows, cols}, spacing, seed % 5 == 0));
        const SolveResult result = SolvePuzzle(board, {1, kMostTrials}, WithoutEnd);
        EXPECT_EQ(result.solved, solved) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(result.trials, trials) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(TraceOf(board), trace) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(result.solved, IsValidSolution(PuzzleOf(board)));
    }
}

/// What the tables say about every island agrees with the bridges that the links carry.
void ExpectTablesOfASolution(const SolverBoard& board) {
    PerCell<int> joined;
    int bridges = 0;
    for (const Link& link : board.LinkList.Links()) {
        if (link.Bridges() == 0) continue;
        bridges += link.Bridges();
        ++joined[link.first];
        ++joined[link.second];
        ASSERT_TRUE(board.ConnectedList[link.first].Contains(link.second));
        const bool sameRow = board.CellRow[link.first] == board.CellRow[link.second];
        const int step = sameRow ? 1 : board.Cols;
        for (CellNumber id = link.first + step; id < link.second; id += step)
            ASSERT_EQ(board.CrossGrid[id], sameRow ? Cross::H : Cross::V);
    }
    for (CellNumber id = 1; id <= board.CellCount; ++id) {
        ASSERT_EQ(board.IslandGrid[id], board.GivenGrid[id] > 0 ? 0 : -1);
        ASSERT_EQ(board.ConnectedList[id].Count(), joined[id]);
        ASSERT_TRUE(board.OpenNeighbours[id].Empty());
    }
    ASSERT_EQ(board.BridgesLaid, bridges);
    int steps = 0;
    for (const LaidBridges& laid : board.laid)
        steps += laid.bridges;
    ASSERT_EQ(steps, bridges) << "every bridge is told of once";
}

TEST(SolvePuzzle, SolvesExactlyWhatHasASolution) {
    std::mt19937 random(77);
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    int solvable = 0;
    int unsolvable = 0;
    // To refuse a board takes a search through all choices: the few boards that need very many are passed over.
    constexpr int kMostTrials = 1000;
    SolverBoard board;
    for (int round = 0; round < 2000; ++round) {
        const Puzzle puzzle = MakeRandomPuzzle(random, {2 + draw(8), 2 + draw(8)}, 2 + draw(4), round % 3 == 0);
        const auto solutions = CountSolutions(puzzle, 1);
        if (!solutions || puzzle.IslandCount() == 0) continue;
        board.Reset(puzzle);
        const SolveResult result = SolvePuzzle(board, {1, kMostTrials}, WithoutEnd);
        if (result.trials == kMostTrials) continue;
        ASSERT_EQ(result.solved, *solutions == 1) << "board " << round;
        if (result.solved) {
            ASSERT_TRUE(IsValidSolution(PuzzleOf(board))) << "board " << round;
            ExpectTablesOfASolution(board);
            if (HasFatalFailure()) return;
        }
        solvable += result.solved;
        unsolvable += !result.solved;
    }
    EXPECT_GT(solvable, 300);
    EXPECT_GT(unsolvable, 300);
}

/// Solves the numbers of these rows; the trials and the links with bridges, or "failed".
std::string Solve(const Rows& rows, const SolveBounds& bounds = kNoBounds) {
    SolverBoard board(PuzzleFrom(rows));
    const SolveResult result = SolvePuzzle(board, bounds, WithoutEnd);
    std::string text = NumText(result.trials);
    if (!result.solved) return text + " failed";
    for (const Link& link : board.LinkList.Links())
        text += link.Bridges() > 0 ? " " + Text(link) : "";
    EXPECT_TRUE(IsValidSolution(PuzzleOf(board)));
    return text;
}

TEST(SolvePuzzle, TakesTheFirstMoveOfTheFirstLine) {
    EXPECT_EQ(Solve({"1.2.1"}, {0, 0}), "0 0010031 0030051") << "the rules alone need no trial";
    // A square of threes: double on top and bottom, or on the sides. Island 1 first takes one to its right, then
    // another.
    const Rows square{"3.3", "...", "3.3"};
    EXPECT_EQ(Solve(square), "2 0010030 0010071 0030091 0070090");
    EXPECT_EQ(Solve(square, {0, 0}), "0 failed") << "a search was needed and not allowed";
    EXPECT_EQ(Solve(square, {1, 3}), Solve(square));
    EXPECT_EQ(Solve(square, {1, 2}), "2 failed") << "the last trial that is allowed is none any more";
    EXPECT_EQ(Solve({"2.2", "...", "2.2"}), "3 0010031 0010071 0030091 0070091") << "one ring, not two pairs";
}

TEST(SolvePuzzle, NeverReportsWhatIsNoSolution) {
    for (const Rows& rows : {Rows{"1"}, {"9.9"}, {"3.1"}})
        EXPECT_EQ(Solve(rows), "0 failed") << rows.front();
    EXPECT_EQ(Solve({"1.1", "...", "1.1"}), "2 failed") << "both pairs would be closed";
    EXPECT_EQ(Solve({".1.", "1.1", ".1."}), "0 failed") << "only by crossing";
}

TEST(SolvePuzzle, StopsWhenItIsAskedToAndCanBeginAgain) {
    SolverBoard board(PuzzleFrom({"3.3", "...", "3.3"}));
    int moments = 0;
    for (bool solved = false; !solved && moments < 100;) {
        ++moments;
        int asked = 0;
        solved = SolvePuzzle(board, kNoBounds, [&] { return ++asked < moments; }).solved;
        EXPECT_EQ(asked + solved, moments);
    }
    EXPECT_EQ(moments, 7) << "asked before each of four passes and at each of two trials";
    EXPECT_TRUE(IsValidSolution(PuzzleOf(board)));
    EXPECT_TRUE(SolvePuzzle(board, kNoBounds, WithoutEnd).solved) << "what was laid before is taken away";
    ExpectTablesOfASolution(board);
}

TEST(SolvePuzzle, ShowsItsOpenChoicesOnTheWay) {
    SolverBoard board(PuzzleFrom({"3.3", "...", "3.3"}));
    std::vector<Rows> seen;
    SolvePuzzle(board, kNoBounds, [&] {
        const Rows lines = ChoicePointLines(board);
        if (seen.empty() || seen.back() != lines) seen.push_back(lines);
        return true;
    });
    const std::string first = "001 3 02 000 000 001 003*2 007*1 007*2 ";
    EXPECT_EQ(seen, (std::vector<Rows>{{}, {first}, {"002 2 02 000 000 001 007*1 007*2 ", first}}));
}

TEST(TrialSearch, FailsWhenItNeedsMoreChoicePointsThanThereMayBe) {
    // Every cell an island that takes one bridge to each side: there is always one more to choose.
    Puzzle puzzle({kMaxSide, kMaxSide});
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const auto [row, col] = puzzle.PlaceOf(id);
        puzzle.SetIsland(id, 4 - (row == 1) - (row == kMaxSide) - (col == 1) - (col == kMaxSide));
    }
    SolverBoard board(puzzle);
    const SolveResult result = SolvePuzzle(board, {1, 2000}, WithoutEnd);
    EXPECT_FALSE(result.solved);
    EXPECT_EQ(result.trials, 501);
    EXPECT_EQ(board.BranchCount(), 500);
}

TEST(TrialSearch, HasNothingToDoOnAFinishedBoard) {
    SolverBoard board(PuzzleFrom({"1.1"}));
    ASSERT_TRUE(SolvePuzzle(board, kNoBounds, WithoutEnd).solved);
    EXPECT_FALSE(TrialSearch(board, 0, WithoutEnd).solved);
}

}  // namespace
}  // namespace tidewalk::test
