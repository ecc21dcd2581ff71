// SPDX-License-Identifier: MIT
#include "generator/create_puzzle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "generator/grow.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/write_puzzle_record.h"
#include "solver/valid_solution.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

struct CreateGame : TestGame {
    int Create(int rows, int cols) {
        Rows = rows;
        Cols = cols;
        int failed = -1;
        CreatePuzzle(*this, grade, failed);
        return failed;
    }

    /// Grows a layout on an empty board and leaves it as it is before anything is pulled in.
    void Grow(int rows, int cols) {
        Rows = rows;
        Cols = cols;
        NumberCells(*this);
        IslandGrid.FillBoard(kOpenWater);
        CrossGrid.Fill(Cross::Free);
        BridgeTotals.Fill(0);
        liveIslands.Clear();
        GrowFromCell = 1;
        PlaceIsland(*this, 1);
        int count = 0;
        while (count != -1)
            GrowStep(*this, count, 100);
    }

    int grade = -1;
};

TEST(CreatePuzzle, EverySizeGivesPuzzlesThatCanBePlayed) {
    CreateGame game;
    const Job job(game);
    int created = 0;
    for (int side = 7; side <= 25; ++side) {
        for (const auto& [rows, cols] : {std::pair{side, side}, {side, 7}, {7, side}, {25, side}, {7, 7}}) {
            if (game.Create(rows, cols) != 0) continue;
            ++created;
            const std::string record = PuzzleRecord(game);
            ASSERT_EQ(FaultOfRecord(record, rows, cols), "") << record;
            ASSERT_TRUE(IsValidSolution(game)) << record;
            ASSERT_EQ(game.BusyFlag, YesValue);
            ASSERT_GE(game.grade, 0);
        }
    }
    EXPECT_GT(created, 19 * 5 * 9 / 10);
}

using NumberRows = std::vector<std::vector<int>>;

NumberRows Turned(const NumberRows& rows) {
    NumberRows turned(rows[0].size(), std::vector<int>(rows.size()));
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (std::size_t c = 0; c < rows[r].size(); ++c)
            turned[c][r] = rows[r][c];
    }
    return turned;
}

bool IsEmpty(const std::vector<int>& line) {
    return line == std::vector<int>(line.size());
}

/// Exchanges an empty first line with the second, then an empty last one with the one before. Returns how many lines
/// moved.
int PullLinesIn(NumberRows& rows) {
    int moved = 0;
    if (IsEmpty(rows.front())) {
        rows[0].swap(rows[1]);
        moved += !IsEmpty(rows[0]);
    }
    if (IsEmpty(rows.back())) {
        rows.back().swap(rows[rows.size() - 2]);
        moved += !IsEmpty(rows.back());
    }
    return moved;
}

TEST(CreatePuzzle, EmptyBordersArePulledInByOneLine) {
    CreateGame game;
    const Job job(game);
    int moved = 0;
    for (int round = 0; round < 400; ++round) {
        if (game.Create(7 + round % 3, 8) != 0) continue;
        NumberRows grown;
        NumberRows made;
        for (int row = 1; row <= game.Rows; ++row) {
            grown.emplace_back();
            made.emplace_back();
            for (int col = 1; col <= game.Cols; ++col) {
                grown.back().push_back(game.BridgeTotals(row, col));
                made.back().push_back(std::max(game.IslandGrid(row, col), 0));
            }
        }
        NumberRows byColumns = Turned(grown);
        moved += PullLinesIn(byColumns);
        NumberRows expected = Turned(byColumns);
        moved += PullLinesIn(expected);
        ASSERT_EQ(made, expected) << PuzzleRecord(game);
    }
    EXPECT_GT(moved, 20);
}

TEST(CreatePuzzle, SameSeedSamePuzzle) {
    const auto make = [](std::uint64_t seed) {
        CreateGame game;
        const Job job(game);
        game.random.UseSeed(seed);
        game.Create(9, 12);
        return PuzzleRecord(game);
    };
    EXPECT_EQ(make(3), make(3));
    EXPECT_NE(make(3), make(4));
}

TEST(CreatePuzzle, LeavesNothingOfALargerBoardBehind) {
    CreateGame game;
    const Job job(game);
    game.Create(25, 25);
    ASSERT_EQ(game.Create(7, 7), 0);
    for (int row = 1; row <= 25; ++row) {
        for (int col = 1; col <= 25; ++col) {
            ASSERT_EQ(game.GivenGrid(row, col), -1);
            if (row <= 7 && col <= 7) continue;
            ASSERT_EQ(game.IslandGrid(row, col), -1);
            ASSERT_EQ(game.CellId(row, col), 0);
        }
    }
}

TEST(CreatePuzzle, CancelLeavesALayoutWithoutBridges) {
    int moment = 1;
    for (; moment < 1000; ++moment) {
        CreateGame game;
        const Job job(game);
        game.clock.step = 100;
        game.events.happen = [&] {
            if (game.events.count == moment) game.CancelFlag = YesValue;
        };
        const int failed = game.Create(9, 8);
        if (game.events.count < moment) break;
        EXPECT_EQ(failed, 1) << moment;
        EXPECT_EQ(game.LinkCount(), 0);
        EXPECT_EQ(game.BusyFlag, NoValue);
        const std::string record = PuzzleRecord(game);
        EXPECT_EQ(FaultOfLayout(record, 9, 8), "") << record;
        EXPECT_NE(record.find_first_of("12345678", record.find("D;")), std::string::npos) << record;
    }
    EXPECT_GT(moment, 10);
    EXPECT_LT(moment, 1000);
}

TEST(CreatePuzzle, StopsAtOnceWhenTheWindowIsClosed) {
    CreateGame game;
    const Job job(game);
    game.clock.step = 100;
    game.events.happen = [&] { game.ending = game.events.count >= 3; };
    EXPECT_EQ(game.Create(25, 25), 1);
    EXPECT_EQ(game.events.count, 3);
}

TEST(CreatePuzzle, LeavesAPuzzleAloneThatWasLoadedMeanwhile) {
    for (int moment = 1; moment <= 30; ++moment) {
        CreateGame game;
        const std::string path = game.folder.Write("other.txt", std::string(kSmallPuzzle) + "\r\n");
        const Job job(game);
        game.clock.step = 100;
        game.events.happen = [&] {
            if (game.events.count == moment) LoadPuzzle(game, path, 1);
        };
        EXPECT_EQ(game.Create(25, 25), 1);
        EXPECT_EQ(game.events.count, moment);
        EXPECT_EQ(PuzzleRecord(game).substr(11), std::string(kSmallPuzzle).substr(11)) << "all but the links' count";
        EXPECT_EQ(game.Rows, 7);
    }
}

TEST(GrowStep, IslandsNeverTouchAndEveryBridgeCounts) {
    CreateGame game;
    for (int round = 0; round < 50; ++round) {
        game.Grow(12, 9);
        int islands = 0;
        int total = 0;
        for (int row = 1; row <= 12; ++row) {
            for (int col = 1; col <= 9; ++col) {
                const bool island = game.IslandGrid(row, col) == kPlacedIsland;
                ASSERT_EQ(island, game.BridgeTotals(row, col) > 0);
                ASSERT_LE(game.BridgeTotals(row, col), 8);
                if (!island) continue;
                ++islands;
                total += game.BridgeTotals(row, col);
                ASSERT_EQ(game.CrossGrid(row, col), Cross::X) << "no island can grow another bridge";
                ASSERT_NE(game.IslandGrid(row + 1, col), kPlacedIsland);
                ASSERT_NE(game.IslandGrid(row, col + 1), kPlacedIsland);
            }
        }
        EXPECT_GE(islands, 2);
        EXPECT_GE(total, 2 * (islands - 1)) << "as many bridges as islands less one, single ones at least";
        EXPECT_LE(total, 4 * (islands - 1));
    }
}

TEST(GrowStep, StopsAtTheFillTarget) {
    CreateGame game;
    game.Grow(7, 7);
    const auto growFrom = [&](int count) {
        game.IslandGrid.FillBoard(kOpenWater);
        game.CrossGrid.Fill(Cross::Free);
        game.GrowFromCell = 1;
        PlaceIsland(game, 1);
        GrowStep(game, count, 10.5F);
        return count;
    };
    EXPECT_EQ(growFrom(4), 5) << "5 bridges are 10.2 percent of 49 cells";
    EXPECT_EQ(growFrom(5), -1);
}

TEST(PickBridgeTarget, KeepsAwayFromDiagonalsAndStopsAtWhatIsInTheWay) {
    CreateGame game;
    game.Rows = 7;
    game.Cols = 7;
    NumberCells(game);
    game.IslandGrid.FillBoard(kOpenWater);
    game.IslandGrid(1, 1) = kPlacedIsland;
    // Row 1 offers columns 3..5, of which 3 has an island on a diagonal; column 1 is closed by a bridge.
    game.IslandGrid(2, 4) = kPlacedIsland;
    game.IslandGrid(1, 6) = kBlockedWater;
    game.CrossGrid(2, 1) = Cross::H;
    std::set<CellNumber> targets;
    for (int i = 0; i < 200; ++i)
        targets.insert(PickBridgeTarget(game, 1));
    EXPECT_EQ(targets, (std::set<CellNumber>{4}));
    EXPECT_EQ(CountDiagonalIslands(game, game.CellId(1, 3)), 1);

    game.CrossGrid(1, 2) = Cross::V;
    EXPECT_EQ(PickBridgeTarget(game, 1), 0);
}

TEST(DrawRandomSide, IsSevenToTwentyFour) {
    TestGame game;
    std::set<int> sides;
    for (int i = 0; i < 5000; ++i)
        sides.insert(DrawRandomSide(game));
    EXPECT_EQ(*sides.begin(), 7);
    EXPECT_EQ(*sides.rbegin(), 24);
    EXPECT_EQ(sides.size(), 18U);
}

}  // namespace
}  // namespace tidewalk::test
