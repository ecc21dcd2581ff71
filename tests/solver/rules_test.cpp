// SPDX-License-Identifier: MIT
// What the rules and the search work with: lists, checks, and each rule alone.
#include "solver/rules.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "solver/connect_islands.h"
#include "solver/contradictions.h"
#include "solver/neighbours.h"
#include "support/board_text.h"
#include "support/random_boards.h"

namespace tidewalk::test {
namespace {

/// A board in the middle of a solve: digits are needs, 0 a finished island, anything else water.
SolverBoard NeedsOf(const Rows& rows) {
    SolverBoard board(PuzzleFrom(rows));
    for (CellNumber id = 1; id <= board.CellCount; ++id) {
        const auto [row, col] = board.PlaceOf(id);
        if (rows[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(col - 1)] == '0') board.IslandGrid[id] = 0;
    }
    BuildNeighbourLists(board);
    return board;
}

/// The bridges that the rules lay from one island when they look at it first, behind their labels.
std::string Visit(SolverBoard& board, CellNumber id) {
    board.awaitingRules.Clear();
    board.awaitingRules.Insert(id);
    board.laid.clear();
    ApplyRules(board);
    std::string text;
    std::string label;
    for (const LaidBridges& laid : board.laid) {
        // Islands behind this one in the pass may have gone on from what it laid.
        if (laid.a != id) continue;
        if (label != Label(laid)) text += (text.empty() ? "" : ", ") + (label = Label(laid)) + ":";
        text += " " + NumText(laid.b) + "x" + NumText(laid.bridges);
    }
    return text;
}

TEST(ConnectIslands, KeepsTheListsAsAFullRebuildMakesThemAndTakesAllBack) {
    std::mt19937 random(3);
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int round = 0; round < 100; ++round) {
        const BoardSize size{4 + draw(22), 4 + draw(22)};
        SolverBoard board(MakeRandomPuzzle(random, size, 2 + draw(3), false));
        const SolverBoard before = board;
        for (int i = 0; i < 40 && board.LinkList.Count() > 0; ++i) {
            const Link link = board.LinkList[1 + draw(board.LinkList.Count())];
            // A bridge across another one is never asked for.
            if (!board.OpenNeighbours[link.first].Contains(link.second)) continue;
            ConnectIslands(board, Rule::Trial, link.first, link.second, 1 + draw(2));
            RefreshStaleLists(board);
            const auto stepwise = board.OpenNeighbours;
            RefreshNeighbours(board);
            ASSERT_EQ(stepwise, board.OpenNeighbours) << "board " << round;
        }
        TakeBackBridges(board, 0);
        ASSERT_EQ(board.OpenNeighbours, before.OpenNeighbours) << "board " << round;
        ASSERT_EQ(board.CrossGrid, before.CrossGrid);
        ASSERT_EQ(board.IslandGrid, before.IslandGrid);
        ASSERT_EQ(board.ConnectedList, before.ConnectedList);
        ASSERT_EQ(board.LinkList.Links(), before.LinkList.Links());
        ASSERT_EQ(board.BridgesLaid, 0);
    }
}

TEST(Rules, LayWhatNeedAndNeighboursForceUnderTheirNames) {
    const std::tuple<Rows, CellNumber, std::string> cases[] = {
        {{"1..5"}, 1, "1-1 connect: 4x1"},
        {{"2..5"}, 1, "2 has only 1 connection: 4x2"},
        {{"3..5"}, 1, ""},
        {{"5.4.5"}, 3, "4-2 connect: 1x2 5x2"},
        {{"5.6.5", ".....", "..5.."}, 3, "6-3 connect: 1x2 5x2 13x2"},
        {{"1.3.5"}, 3, "3-1 connect: 1x1, 3-2 connect: 5x2"},
        {{"5.3.1"}, 3, "3-1 connect: 5x1, 3-2 connect: 1x2"},
        {{"5.3.5"}, 3, ""},
        {{"5.5.5", ".....", "..5.."}, 3, "5-3 links connect: 1x1, 5-3 link connect: 5x1 13x1"},
        {{"5.2.1"}, 3, "2-1 connect: 1x1"},
        {{"1.2.1"}, 3, "2-1 connect: 5x1"},
        {{"5.2.5"}, 3, ""},
        {{"1.3.1", ".....", "..2.."}, 3, "3-3-2 1s connect: 13x1"},
        {{"1.3.2", ".....", "..1.."}, 3, "3-3-2 1s connect: 5x1"},
        {{"2.3.1", ".....", "..1.."}, 3, "3-3-2 1s connect: 1x1"},
        {{"1.3.2", ".....", "..2.."}, 3, ""},
        {{"2.4.1", ".....", "..1.."}, 3, "4-3-O1 connect: 1x1 13x1"},
        {{"1.4.5", ".....", "..5.."}, 3, "4-3-O1 connect: 5x1 13x1"},
        {{"5.4.5", ".....", "..1.."}, 3, "4-3-O1 connect: 1x1 5x1"},
        {{"5.4.5", ".....", "..5.."}, 3, ""},
    };
    for (const auto& [rows, island, laid] : cases) {
        SolverBoard board = NeedsOf(rows);
        EXPECT_EQ(Visit(board, island), laid) << rows.front();
    }
    EXPECT_EQ(Label({.rule = Rule::Trial, .a = 1, .b = 45}), "001connected with045");
    for (const auto& [rule, name] : {std::pair{Rule::FirstOfThreeToTwo, "3-2 connect part1"},
                                     {Rule::SecondOfThreeToTwo, "3-2 connect part2"},
                                     {Rule::TwoOverHalfUsedLinks, "2-R1 connect"},
                                     {Rule::Trial, ""}})
        EXPECT_EQ(RuleName(rule), name) << "never laid by a rule";
}

TEST(Contradictions, AreOverdrawnLinksMissingBridgesAndClosedGroups) {
    // The board, the bridges laid one after the other (their number where a link has its state), and the answer.
    const std::tuple<Rows, std::vector<Link>, bool> cases[] = {
        {{"3.1"}, {}, true},                          // needs more than its neighbour
        {{"3.9"}, {}, true},                          // needs more than the link takes
        {{"9..", "...", "2.2"}, {}, true},            // the 9
        {{"1.3"}, {{1, 3, 2}}, true},                 // a need below 0
        {{"5.5"}, {{1, 3, 2}, {1, 3, 1}}, true},      // an overdrawn link
        {{"1.1", "...", "1.1"}, {{1, 3, 1}}, true},   // a pair that is closed
        {{"1.1"}, {{1, 3, 1}}, false},                // closed, but the whole puzzle
        {{"2.2", "...", "2.2"}, {{1, 3, 1}}, false},  // a pair that can still grow
        {{"1.2", "...", "1.2"}, {{1, 3, 1}, {7, 9, 1}, {3, 9, 1}}, false},
    };
    for (const auto& [rows, bridges, contradiction] : cases) {
        SolverBoard board = NeedsOf(rows);
        for (const auto& [a, b, n] : bridges)
            ConnectIslands(board, Rule::Trial, a, b, n);
        RefreshStaleLists(board);
        EXPECT_EQ(FindContradiction(board), contradiction) << rows.front() << " and " << bridges.size();
        EXPECT_EQ(board.awaitingCheck.Empty(), !contradiction);
        EXPECT_EQ(FindContradiction(board), contradiction) << "it stays one";
    }
}

}  // namespace
}  // namespace tidewalk::test
