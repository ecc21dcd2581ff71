// SPDX-License-Identifier: MIT
#include "solver/solve_puzzle.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "model/numbers.h"
#include "solver/count_solutions.h"
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
        {2, 2, 2, 8779, 1, 3, 0xc6d1}, {3, 3, 2, 6725, 0, 26, 0xfe29}, {4, 4, 2, 24531, 1, 19, 0xa7d3},
        {6, 6, 2, 20291, 1, 235, 0xfe2a}, {7, 7, 2, 10335, 0, 428, 0x9328}, {9, 9, 2, 23103, 1, 0, 0x4207},
        {10, 10, 2, 14579, 1, 499, 0x0c39}, {11, 11, 2, 5340, 0, 348, 0x7a20}, {13, 13, 4, 1403, 1, 0, 0x6823},
        {14, 14, 2, 28434, 1, 499, 0xf023}, {15, 15, 2, 27390, 0, 500, 0xef38}, {12, 16, 4, 24754, 1, 0, 0x7794},
        {17, 17, 3, 12609, 1, 460, 0xcb1f}, {19, 19, 4, 12196, 1, 498, 0x55e9}, {20, 20, 2, 1476, 0, 328, 0x0ccb},
        {22, 16, 3, 14039, 1, 309, 0x0f68}, {6, 23, 3, 5468, 1, 0, 0x617d}, {24, 13, 3, 16093, 1, 457, 0x1afc},
        {25, 7, 5, 2419, 1, 0, 0xa104}, {25, 25, 2, 5844, 0, 370, 0x3ecd}, {25, 25, 2, 15504, 0, 500, 0x2ea7},
        // clang-format on
    };
    SolverBoard board;
    for (const auto& [rows, cols, spacing, seed, solved, trials, trace] : pins) {
        std::mt19937 random(seed);
        board.Reset(MakeRandomPuzzle(random, {rows, cols}, spacing, seed % 5 == 0));
        const SolveResult result = SolvePuzzle(board, {1, kMostTrials}, WithoutEnd);
        EXPECT_EQ(result.Solved(), solved) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(result.trials, trials) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(TraceOf(board), trace) << rows << "x" << cols << " of seed " << seed;
        EXPECT_EQ(result.Solved(), IsValidSolution(PuzzleOf(board)));
    }
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
        ASSERT_EQ(result.Solved(), *solutions == 1) << "board " << round;
        ASSERT_EQ(result.Solved(), IsValidSolution(PuzzleOf(board))) << "board " << round;
        solvable += result.Solved();
        unsolvable += !result.Solved();
    }
    EXPECT_GT(solvable, 300);
    EXPECT_GT(unsolvable, 300);
}

/// Solves the numbers of these rows; the trials and the links with bridges, or "failed".
std::string Solve(const Rows& rows, const SolveBounds& bounds = kNoBounds) {
    SolverBoard board(PuzzleFrom(rows));
    const SolveResult result = SolvePuzzle(board, bounds, WithoutEnd);
    std::string text = NumText(result.trials);
    if (!result.Solved()) return text + " failed";
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
    for (const int bound : {1, 2})
        EXPECT_EQ(Solve(square, {1, bound}), NumText(bound) + " failed") << "the last trial is none any more";
    EXPECT_EQ(Solve({"2.2", "...", "2.2"}), "3 0010031 0010071 0030091 0070091") << "one ring, not two pairs";
}

TEST(SolvePuzzle, StopsWhenItIsAskedToAndCanBeginAgain) {
    SolverBoard board(PuzzleFrom({"3.3", "...", "3.3"}));
    int moments = 0;
    for (bool solved = false; !solved && moments < 100;) {
        ++moments;
        int asked = 0;
        solved = SolvePuzzle(board, kNoBounds, [&] { return ++asked < moments; }).Solved();
        EXPECT_EQ(asked + solved, moments);
    }
    EXPECT_EQ(moments, 7) << "asked before each of four passes and at each of two trials";
    EXPECT_TRUE(IsValidSolution(PuzzleOf(board)));
    EXPECT_EQ(SolvePuzzle(board, kNoBounds, WithoutEnd).trials, 2) << "what was laid before is taken away";
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
    EXPECT_EQ(result.end, SolveEnd::GivenUp);
    EXPECT_EQ(result.trials, 501);
    EXPECT_EQ(board.BranchCount(), 500);
    const SolveResult answer = SolvePuzzle(board, kNoBounds, WithoutEnd);
    EXPECT_EQ(answer.end, SolveEnd::Solved);
    EXPECT_EQ(answer.trials, 501);
    EXPECT_TRUE(IsValidSolution(PuzzleOf(board)));
}

TEST(SolvePuzzle, AnswersWhereTheTrialSearchDoesNot) {
    const Rows possible{"243452", "354552", "451342", "365242", "334143", "233122"};
    const Rows impossible{"11332", "35533", "46222", "45573", "32332"};
    for (const auto& [rows, end] : {std::pair{possible, SolveEnd::Solved}, {impossible, SolveEnd::NoSolution}}) {
        SolverBoard board(PuzzleFrom(rows));
        EXPECT_EQ(SolvePuzzle(board, {1, kTrialsBeforeExactSearch}, WithoutEnd).end, SolveEnd::GivenUp);
        const SolveResult result = SolvePuzzle(board, kNoBounds, WithoutEnd);
        EXPECT_EQ(result.end, end);
        EXPECT_EQ(result.trials, kTrialsBeforeExactSearch);
        EXPECT_EQ(IsValidSolution(PuzzleOf(board)), end == SolveEnd::Solved);
    }
    SolverBoard board(PuzzleFrom(possible));
    int all = 0;
    SolvePuzzle(board, kNoBounds, [&] { return ++all > 0; });
    const auto untilTheLast = [&] { return --all > 0; };
    EXPECT_EQ(SolvePuzzle(board, kNoBounds, untilTheLast).end, SolveEnd::Stopped) << "the exact search asks, too";
    EXPECT_EQ(all, 0);
}

}  // namespace
}  // namespace tidewalk::test
