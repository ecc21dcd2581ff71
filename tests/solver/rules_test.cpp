// SPDX-License-Identifier: MIT
#include "solver/rules.h"

#include <gtest/gtest.h>

#include "model/numbers.h"
#include "solver/connect_islands.h"
#include "solver/neighbours.h"
#include "solver/status_list.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A board for the solver: digits are needs, 0 a finished island, anything else water.
struct SolverBoard : TestGame {
    explicit SolverBoard(const std::vector<std::string>& rows) {
        Rows = static_cast<int>(rows.size());
        Cols = static_cast<int>(rows.front().size());
        NumberCells(*this);
        for (int row = 1; row <= Rows; ++row) {
            for (int col = 1; col <= Cols; ++col) {
                const char c = rows[row - 1][col - 1];
                IslandGrid(row, col) = c >= '0' && c <= '9' ? c - '0' : -1;
            }
        }
        BuildNeighbourLists(*this);
        RefreshNeighbours(*this);
    }

    /// Lets the rules look at one island first, and tells what was laid from there.
    std::string Visit(CellNumber id) {
        awaitingRules.Clear();
        awaitingRules.Insert(id);
        laid.clear();
        ApplyRules(*this);
        std::string text;
        // Islands behind this one in the pass may have gone on from what it laid.
        for (const LaidBridges& bridges : laid) {
            if (bridges.a == id) text += NumText(bridges.b) + "x" + NumText(bridges.count) + " ";
        }
        return text;
    }

    std::string Open(CellNumber id) const { return Text(OpenNeighbours(CellRow[id], CellCol[id])); }
};

TEST(Neighbours, AreScannedLeftRightUpDownAndListedTwice) {
    SolverBoard board({"..1..", ".....", "1.2.1", ".....", "..1.."});
    EXPECT_EQ(board.Open(13), "011 015 003 023 ");
    EXPECT_EQ(board.LinkCount(), 8);
    EXPECT_EQ(Text(board.LinkList[1]), "0030132");
    EXPECT_EQ(Text(board.LinkList[2]), "0110132");
    EXPECT_EQ(Text(board.LinkList[3]), "0130112");
}

TEST(Neighbours, FinishedIslandsAndBridgesAcrossBlockTheView) {
    EXPECT_EQ(SolverBoard({"1.0.1"}).Open(1), "");
    EXPECT_EQ(SolverBoard({"1...1"}).Open(1), "005 ");
    SolverBoard board({"..2..", "2...2", "..2.."});
    ConnectIslands(board, "test", 3, 13, 1);
    EXPECT_EQ(board.CrossGrid(2, 3), Cross::V);
    EXPECT_EQ(board.Open(6), "") << "across a vertical bridge";
    EXPECT_EQ(board.Open(3), "013 ");
}

TEST(ConnectIslands, ChangesTheFirstEntryAndCrossesNoEnd) {
    SolverBoard board({"4..4"});
    ConnectIslands(board, "test", 1, 4, 1);
    EXPECT_EQ(Text(board.LinkList[1]), "0010041");
    EXPECT_EQ(Text(board.LinkList[2]), "0040012");
    EXPECT_EQ(GetLinkValue(board, 4, 1), 1);
    EXPECT_EQ(board.CrossGrid(1, 2), Cross::H);
    EXPECT_EQ(board.CrossGrid(1, 1), Cross::Free);
    EXPECT_EQ(Text(board.ConnectedList[1]), " 4,");
    ConnectIslands(board, "test", 1, 4, 2);
    EXPECT_EQ(board.IslandGrid(1, 1), 1);
    EXPECT_EQ(Text(board.LinkList[1]), "0010040") << "no capacity below 0";
    EXPECT_EQ(board.BridgesLaid, 3);
    EXPECT_EQ(Text(board.ConnectedList[4]), " 1,");
    EXPECT_EQ(board.Open(1), "004 ") << "a full link stays open until the next refresh";
    RefreshNeighbours(board);
    EXPECT_EQ(board.Open(1), "");
    EXPECT_EQ(GetLinkValue(board, 2, 3), 0);
}

TEST(Rules, LayWhatNeedAndNeighboursForce) {
    struct Case {
        std::vector<std::string> rows;
        CellNumber island;
        std::string laid;
    };
    const Case cases[] = {
        {{"1..5"}, 1, "4x1 "},
        {{"2..5"}, 1, "4x2 "},
        {{"3..5"}, 1, ""},
        {{"5.4.5"}, 3, "1x2 5x2 "},
        {{"5.6.5", ".....", "..5.."}, 3, "1x2 5x2 13x2 "},
        {{"1.3.5"}, 3, "1x1 5x2 "},
        {{"5.3.1"}, 3, "5x1 1x2 "},
        {{"1.3.1"}, 3, "1x1 5x2 "},
        {{"5.3.5"}, 3, ""},
        {{"5.5.5", ".....", "..5.."}, 3, "1x1 5x1 13x1 "},
        {{"5.2.1"}, 3, "1x1 "},
        {{"1.2.1"}, 3, "5x1 "},
        {{"5.2.5"}, 3, ""},
        {{"1.3.1", ".....", "..2.."}, 3, "13x1 "},
        {{"1.3.2", ".....", "..1.."}, 3, "5x1 "},
        {{"2.3.1", ".....", "..1.."}, 3, "1x1 "},
        {{"1.3.2", ".....", "..2.."}, 3, ""},
        {{"2.4.1", ".....", "..1.."}, 3, "1x1 13x1 "},
        {{"1.4.5", ".....", "..5.."}, 3, "5x1 13x1 "},
        {{"5.4.5", ".....", "..5.."}, 3, ""},
        {{"1.1.1"}, 3, ""},
        {{"5.7.5", ".....", "..5.."}, 3, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(SolverBoard(c.rows).Visit(c.island), c.laid) << c.rows.front();
}

TEST(Rules, CapacitiesStopTheDoublingOnes) {
    const auto withBridge = [](const std::vector<std::string>& rows, CellNumber self, CellNumber other) {
        SolverBoard board(rows);
        ConnectIslands(board, "test", self, other, 1);
        RefreshNeighbours(board);
        return board.Visit(self);
    };
    EXPECT_EQ(withBridge({"3..9"}, 1, 4), "") << "a need of 2 on a link that takes one more";
    EXPECT_EQ(withBridge({"9.5.9"}, 3, 1), "") << "the first link is in use";
    EXPECT_EQ(withBridge({"9.5.9"}, 3, 5), "1x2 ") << "only the second link is in use";
}

TEST(StatusList, SortsByNeedThenNeighboursThenId) {
    SolverBoard board({"2.3.1", ".....", "..1.."});
    ShowStatusList(board);
    EXPECT_EQ(board.List1.Lines(), (std::vector<std::string>{"1 01 000 000 005 003*1 ", "1 01 000 000 013 003*1 ",
                                                             "2 01 000 000 001 003*1 003*2 ",
                                                             "3 03 000 000 003 001*1 001*2 005*1 005*2 013*1 013*2 "}));
    ASSERT_TRUE(FirstStatusLine(board));
    EXPECT_EQ(Text(*FirstStatusLine(board)), board.List1.Lines().front());
    ConnectIslands(board, "test", 5, 3, 1);
    RefreshNeighbours(board);
    EXPECT_EQ(Text(*FirstStatusLine(board)), "1 01 000 000 013 003*1 ");
}

}  // namespace
}  // namespace tidewalk::test
