// SPDX-License-Identifier: MIT
// What the rules and the search work with: neighbours, links, bridges, checks, and each rule alone.
#include "solver/rules.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "solver/connect_islands.h"
#include "solver/contradictions.h"
#include "solver/neighbours.h"
#include "solver/status_list.h"
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

std::string OpenOf(const SolverBoard& board, CellNumber id) {
    return Text(board.OpenNeighbours[id]);
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

TEST(Neighbours, AreScannedLeftRightUpDownAndListedTwice) {
    const SolverBoard board = NeedsOf({"..1..", ".....", "1.2.1", ".....", "..1.."});
    EXPECT_EQ(OpenOf(board, 13), "011 015 003 023 ");
    EXPECT_EQ(board.LinkList.Count(), 8);
    EXPECT_EQ(Text(board.LinkList[1]) + Text(board.LinkList[2]) + Text(board.LinkList[3]), "003013201101320130112");
    EXPECT_EQ(board.LinkList.Links().back(), board.LinkList[8]);
}

TEST(Neighbours, FinishedIslandsAndBridgesAcrossBlockTheView) {
    EXPECT_EQ(OpenOf(NeedsOf({"1.0.1"}), 1), "");
    EXPECT_EQ(OpenOf(NeedsOf({"1...1"}), 1), "005 ");
    SolverBoard board = NeedsOf({"..2..", "2...2", "..2.."});
    ConnectIslands(board, Rule::Trial, 3, 13, 1);
    EXPECT_EQ(board.CrossGrid[8], Cross::V);
    EXPECT_EQ(OpenOf(board, 6) + OpenOf(board, 10), "") << "across a vertical bridge";
    EXPECT_EQ(OpenOf(board, 3), "013 ");
    TakeBackBridges(board, 0);
    ConnectIslands(board, Rule::Trial, 6, 10, 1);
    EXPECT_EQ(OpenOf(board, 3) + OpenOf(board, 13), "") << "across a horizontal bridge";
    TakeBackBridges(board, 0);
    EXPECT_EQ(OpenOf(board, 3) + OpenOf(board, 6), "013 010 ");
    ConnectIslands(board, Rule::Trial, 3, 10, 1);
    EXPECT_EQ(OpenOf(board, 6), "010 ") << "what joins no row or column crosses nothing";
    EXPECT_EQ(board.overdrawnLinks, 1) << "and has no link";
    EXPECT_EQ(GetLinkValue(board, 10, 13), 0);
}

/// The counts of blocked cells as the marks alone tell them.
auto BlockedByMarks(const SolverBoard& board) {
    decltype(board.blockedCells) blocked{};
    for (int link = 1; link <= board.LinkList.Count(); ++link) {
        const auto [first, second, state] = board.LinkList[link];
        // Only the first of a pair's two entries counts.
        if (board.LinkList.Find(first, second) != link) continue;
        const bool sameRow = board.CellRow[first] == board.CellRow[second];
        for (CellNumber id = std::min(first, second); id < std::max(first, second); id += sameRow ? 1 : board.Cols)
            blocked[static_cast<std::size_t>(link)] += board.CrossGrid[id] == (sameRow ? Cross::V : Cross::H);
    }
    return blocked;
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
            ASSERT_EQ(BlockedByMarks(board), board.blockedCells) << "board " << round;
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
        {{"1.3.1"}, 3, "3-1 connect: 1x1, 3-2 connect: 5x2"},
        {{"5.3.5"}, 3, ""},
        {{"5.5.5", ".....", "..5.."}, 3, "5-3 links connect: 1x1, 5-3 link connect: 5x1 13x1"},
        {{"5.2.1"}, 3, "2-1 connect: 1x1"},
        {{"1.2.1"}, 3, "2-1 connect: 5x1"},
        {{"5.2.5"}, 3, ""},
        {{"1.3.1", ".....", "..2.."}, 3, "3-3-2 1s connect: 13x1"},
        {{"1.3.2", ".....", "..1.."}, 3, "3-3-2 1s connect: 5x1"},
        {{"2.3.1", ".....", "..1.."}, 3, "3-3-2 1s connect: 1x1"},
        {{"1.3.1", ".....", "..1.."}, 3, "3-3-2 1s connect: 13x1"},
        {{"1.3.2", ".....", "..2.."}, 3, ""},
        {{"2.4.1", ".....", "..1.."}, 3, "4-3-O1 connect: 1x1 13x1"},
        {{"1.4.5", ".....", "..5.."}, 3, "4-3-O1 connect: 5x1 13x1"},
        {{"5.4.5", ".....", "..1.."}, 3, "4-3-O1 connect: 1x1 5x1"},
        {{"5.4.5", ".....", "..5.."}, 3, ""},
        {{"1.1.1"}, 3, ""},
        {{"5.7.5", ".....", "..5.."}, 3, ""},
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

TEST(Rules, ReadTheCapacityOfEveryLink) {
    const auto withBridges = [](const Rows& rows, CellNumber self, const std::vector<CellNumber>& others, int bridges) {
        SolverBoard board = NeedsOf(rows);
        for (const CellNumber other : others)
            ConnectIslands(board, Rule::Trial, self, other, bridges);
        // Without a refresh a full link is open still.
        if (bridges == 1) RefreshStaleLists(board);
        return Visit(board, self);
    };
    EXPECT_EQ(withBridges({"3..9"}, 1, {4}, 1), "") << "a need of 2 on a link that takes one more";
    EXPECT_EQ(withBridges({"9.5.9"}, 3, {1}, 1), "") << "the first link is in use";
    EXPECT_EQ(withBridges({"9.5.9"}, 3, {5}, 1), "4-2 connect: 1x2") << "only the second link is in use";
    EXPECT_EQ(withBridges({"9.4.9"}, 3, {1, 5}, 1), "") << "the rule for half used links comes too late";
    const Rows cross{"9.5.9", ".....", "..9.."};
    EXPECT_EQ(withBridges(cross, 3, {1}, 2), "3-3-O1 connect: 5x1 13x1");
    EXPECT_EQ(withBridges(cross, 3, {5}, 2), "3-3-O1 connect: 1x1 13x1");
    EXPECT_EQ(withBridges(cross, 3, {13}, 2), "3-3-O1 connect: 1x1 5x1");
    EXPECT_EQ(withBridges({"9.7.9", ".....", "..9.."}, 3, {1, 13}, 2), "") << "two full links";
}

TEST(Contradictions, AreOverdrawnLinksMissingBridgesAndClosedGroups) {
    // The board, the bridges laid one after the other (their number where a link has its state), and the answer.
    const std::tuple<Rows, std::vector<Link>, bool> cases[] = {
        {{"2.2"}, {}, false},
        {{"3.1"}, {}, true},                          // needs more than its neighbour
        {{"3.9"}, {}, true},                          // needs more than the link takes
        {{"9..", "...", "2.2"}, {}, true},            // the 9
        {{"1.3"}, {{1, 3, 2}}, true},                 // a need below 0
        {{"5.5"}, {{1, 3, 2}, {1, 3, 1}}, true},      // an overdrawn link
        {{"1.1", "...", "1.1"}, {{1, 3, 1}}, true},   // a pair that is closed
        {{"1.1"}, {{1, 3, 1}}, false},                // closed, but the whole puzzle
        {{"2.2", "...", "2.2"}, {{1, 3, 1}}, false},  // a pair that can still grow
        {{"1.2", "...", "1.2"}, {{1, 3, 1}, {7, 9, 1}}, false},
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

TEST(Contradictions, AreLookedForWhereSomethingChanged) {
    SolverBoard board = NeedsOf({"2.2.1"});
    ASSERT_FALSE(FindContradiction(board));
    ConnectIslands(board, Rule::Trial, 3, 5, 1);
    EXPECT_TRUE(FindContradiction(board)) << "island 1 has its neighbour still, which can give it less";

    board = NeedsOf({"1.2.1", ".....", "1...1"});
    ASSERT_FALSE(FindContradiction(board));
    ConnectIslands(board, Rule::Trial, 1, 3, 1);
    ConnectIslands(board, Rule::Trial, 3, 5, 1);
    RefreshStaleLists(board);
    EXPECT_EQ(CheckIsolation(board), 1) << "the first of the three that are closed";
}

TEST(StatusList, SortsByNeedThenNeighboursThenId) {
    SolverBoard board = NeedsOf({"2.3.1", ".....", "..1.."});
    EXPECT_EQ(StatusLines(board),
              (Rows{"2 01 000 000 001 003*1 003*2 ", "3 03 000 000 003 001*1 001*2 005*1 005*2 013*1 013*2 ",
                    "1 01 000 000 005 003*1 ", "1 01 000 000 013 003*1 "}));
    EXPECT_EQ(Text(FirstStatusLine(board).value()), "1 01 000 000 005 003*1 ");
    ConnectIslands(board, Rule::Trial, 5, 3, 1);
    RefreshStaleLists(board);
    EXPECT_EQ(Text(FirstStatusLine(board).value()), "1 01 000 000 013 003*1 ");
    EXPECT_EQ(Text(FirstStatusLine(NeedsOf({"2.3.2", ".....", "..2.2"})).value()).substr(0, 16), "2 01 000 000 001");
    EXPECT_EQ(Text(FirstStatusLine(NeedsOf({"2.2", "...", "2.2", "2.."})).value()).substr(0, 16), "2 01 000 000 010");
    board = NeedsOf({"3.9"});
    ConnectIslands(board, Rule::Trial, 1, 3, 1);
    EXPECT_EQ(StatusLines(board).front(), "2 01 000 000 001 003*1 ") << "the link takes one more";
    EXPECT_FALSE(FirstStatusLine(NeedsOf({"0.."})));
}

}  // namespace
}  // namespace tidewalk::test
