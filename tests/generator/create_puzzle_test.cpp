// SPDX-License-Identifier: MIT
#include "generator/create_puzzle.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

#include "generator/grid_size.h"
#include "generator/grow.h"
#include "model/plain_grid.h"
#include "support/board_text.h"
#include "support/layout_checker.h"

namespace tidewalk::test {
namespace {

CreatedPuzzle Create(BoardSize size, std::uint64_t seed, const MayGoOn& mayGoOn = WithoutEnd) {
    static SolverBoard board;
    RandomSource random(seed);
    return CreatePuzzle(board, size, random, mayGoOn);
}

TEST(CreatePuzzle, ASeedGivesTheSameBytesAndGradeOnEveryMachine) {
    // Size, seed, grade, record. The first layout of the last one comes to the bound of trials.
    const std::tuple<BoardSize, std::uint64_t, int, std::uint32_t> pins[] = {
        {{7, 7}, 1, 2, 0x41c4f0d1},      {{7, 7}, 7, 4, 0xfcd37f86},     {{7, 8}, 9, 2, 0x43808ac1},
        {{9, 8}, 11, 2, 0x2c53ff0d},     {{7, 25}, 12, 3, 0xcc1ad5e4},   {{25, 7}, 14, 2, 0x92875cd6},
        {{24, 9}, 30, 13, 0x454ccf08},   {{9, 24}, 32, 8, 0x6ff3b6fb},   {{12, 12}, 33, 2, 0xa75e1d59},
        {{15, 16}, 35, 13, 0x82be15dd},  {{18, 15}, 36, 11, 0x214d267e}, {{20, 20}, 43, 8, 0x7199636e},
        {{25, 19}, 45, 10, 0x1721a6eb},  {{25, 25}, 47, 38, 0xccd9535d}, {{25, 25}, 48, 42, 0x4929316e},
        {{25, 25}, 1760, 6, 0x20d6989e},
    };
    for (const auto& [size, seed, grade, hash] : pins) {
        const CreatedPuzzle created = Create(size, seed);
        const std::string record = PuzzleRecord(created.puzzle);
        EXPECT_TRUE(created.solved);
        EXPECT_EQ(created.grade, grade) << record;
        EXPECT_EQ(Hash(record), hash) << record;
    }
    EXPECT_EQ(PuzzleRecord(Create({7, 8}, 3).puzzle),
              " 7, 8, 42;D;3-2-3=2.,I......2,4----2.I,|.3=2|.4,|.|..|.I,|.|2=5=4,2-4=4=2.,");
}

TEST(CreatePuzzle, EverySizeGivesPuzzlesThatCanBePlayed) {
    for (int side = kMinSide; side <= kMaxSide; ++side) {
        for (const BoardSize size : {BoardSize{side, side}, {side, 7}, {7, side}, {25, side}}) {
            const CreatedPuzzle created = Create(size, static_cast<std::uint64_t>(side));
            ASSERT_TRUE(created.solved);
            ASSERT_EQ(FaultOfRecord(PuzzleRecord(created.puzzle), size), "") << PuzzleRecord(created.puzzle);
        }
    }
}

TEST(CreatePuzzle, GivesUpAfterFiveLayouts) {
    // The answer is yes before each layout and no as soon as the solver asks.
    int asked = 0;
    EXPECT_FALSE(Create({9, 8}, 1, [&] { return ++asked % 2 == 1; }).solved);
    EXPECT_EQ(asked, 10);
}

TEST(CreatePuzzle, StoppedItLeavesALayoutWithoutBridges) {
    const Puzzle first = Create({9, 8}, 35, [] { return false; }).puzzle;
    int moment = 1;
    for (bool stopped = true; stopped; ++moment) {
        int asked = 0;
        const CreatedPuzzle created = Create({9, 8}, 35, [&] { return ++asked < moment; });
        stopped = asked >= moment;
        EXPECT_EQ(created.solved, !stopped);
        EXPECT_LE(asked, moment + 1) << "a solver that was stopped is followed by one more look";
        EXPECT_EQ(WithoutLinks(created.puzzle), first) << "one is grown in any case, and no second one";
        EXPECT_EQ(created.puzzle.LinkCount() > 0, created.solved);
    }
    EXPECT_EQ(moment, 31);
    EXPECT_EQ(FaultOfLayout(first), "");
}

TEST(GrownPuzzle, EmptyBordersArePulledInByOneLine) {
    const auto pulledIn = [](const Rows& rows) {
        const Puzzle puzzle = PuzzleFrom(rows);
        GrowingLayout layout(puzzle.Size());
        for (CellNumber id = 1; id <= layout.CellCount(); ++id)
            layout.BridgeTotals(puzzle.CellRow(id), puzzle.CellCol(id)) = puzzle.IslandAt(id);
        return PlainGrid(GrownPuzzle(layout));
    };
    EXPECT_EQ(pulledIn({"......", ".1.23.", "......", ".45.6.", "......"}),
              (Rows{"1..2.3", "......", "......", "......", "4.5..6"}));
    EXPECT_EQ(pulledIn({"1.....", "......", ".....2"}), (Rows{"1.....", "......", ".....2"}));
    EXPECT_EQ(pulledIn({".....", ".....", "..1..", ".....", "....."}),
              (Rows{".....", ".....", "..1..", ".....", "....."}))
        << "of two empty lines one stays";
    EXPECT_EQ(pulledIn({"..1...", "....2.", "......"}), (Rows{"..1...", "......", ".....2"}));
}

/// A board with these islands, of which the last one grows first.
GrowingLayout Layout(BoardSize size, const std::vector<CellNumber>& islands) {
    GrowingLayout layout(size);
    for (const CellNumber island : islands)
        PlaceIsland(layout, layout.GrowFromCell = island);
    return layout;
}

int TotalAt(const GrowingLayout& layout, CellNumber id) {
    const auto [row, col] = layout.PlaceOf(id);
    return layout.BridgeTotals(row, col);
}

TEST(GrowStep, GoesOnFromTheNewIslandWithAsManyDoubleBridgesAsSingleOnes) {
    RandomSource random(1);
    int doubles = 0;
    for (int round = 0; round < 1000; ++round) {
        GrowingLayout layout = Layout({7, 7}, {1});
        int count = 0;
        GrowStep(layout, random, count, 100);
        ASSERT_EQ(count, 1);
        const auto [row, col] = layout.PlaceOf(layout.GrowFromCell);
        ASSERT_GT(row + col, 2) << "the island that was placed";
        ASSERT_EQ(layout.IslandGrid(row, col), kPlacedIsland);
        ASSERT_EQ(layout.BridgeTotals(row, col), layout.BridgeTotals(1, 1));
        ASSERT_EQ(layout.CrossGrid(row == 1 ? 1 : 2, row == 1 ? 2 : 1), row == 1 ? Cross::H : Cross::V);
        doubles += layout.BridgeTotals(1, 1) == 2;
    }
    EXPECT_NEAR(doubles, 500, 60);
}

TEST(GrowStep, GoesOnFromARandomIslandWhenTheNewOneIsExhausted) {
    RandomSource random(1);
    std::map<CellNumber, int> sources;
    for (int round = 0; round < 600; ++round) {
        GrowingLayout layout = Layout({25, 25}, {1, 25, 601, 313, 625});
        // The island in the corner is shut in.
        layout.CrossGrid(24, 25) = layout.CrossGrid(25, 24) = Cross::H;
        int count = 0;
        GrowStep(layout, random, count, 100);
        ASSERT_EQ(layout.CrossGrid(25, 25), Cross::X);
        ASSERT_FALSE(layout.liveIslands.Contains(625));
        for (const CellNumber island : {1, 25, 601, 313})
            sources[island] += TotalAt(layout, island) > 0;
    }
    for (const auto& [island, times] : sources)
        EXPECT_NEAR(times, 150, 45) << island;
}

TEST(GrowStep, StopsAtTheFillTargetOrWithTheLastIsland) {
    RandomSource random(1);
    const auto growFrom = [&](int count) {
        GrowingLayout layout = Layout({7, 7}, {1});
        GrowStep(layout, random, count, 1000.F / 98);
        return count;
    };
    EXPECT_EQ(growFrom(3), 4) << "4 bridges are 8.2 percent of 49 cells";
    EXPECT_EQ(growFrom(4), -1) << "5 bridges are 10.2 percent";
    GrowingLayout full = Layout({2, 2}, {1});
    int count = 0;
    GrowStep(full, random, count, 100);
    EXPECT_EQ(count, -1);
}

TEST(PickBridgeTarget, KeepsAwayFromDiagonalsAndStopsAtWhatIsInTheWay) {
    RandomSource random(1);
    GrowingLayout layout({9, 9});
    const auto targets = [&](CellNumber cell) {
        std::map<CellNumber, int> drawn;
        for (int i = 0; i < 300; ++i)
            ++drawn[PickBridgeTarget(layout, random, cell)];
        return drawn;
    };
    std::set<CellNumber> inReach;
    for (const auto& [cell, times] : targets(41)) {
        inReach.insert(cell);
        EXPECT_NEAR(times, 25, 20) << "all alike";
    }
    EXPECT_EQ(inReach, (std::set<CellNumber>{5, 14, 23, 37, 38, 39, 43, 44, 45, 59, 68, 77}));
    // Up it is blocked, to the left a bridge crosses, down there is an island, to the right a bridge runs past.
    layout.IslandGrid(2, 5) = kBlockedWater;
    layout.CrossGrid(5, 2) = layout.CrossGrid(5, 6) = Cross::V;
    for (const auto& [row, col] : {CellPlace{8, 5}, {6, 4}, {8, 6}, {4, 4}})
        layout.IslandGrid(row, col) = kPlacedIsland;
    EXPECT_EQ(targets(41), (std::map<CellNumber, int>{{23, 300}})) << "39 and 59 have more islands on their diagonals";
    EXPECT_EQ(CountDiagonalIslands(layout, 59), 2);
    layout.CrossGrid(4, 5) = layout.CrossGrid(6, 5) = Cross::H;
    layout.CrossGrid(5, 4) = Cross::V;
    EXPECT_EQ(PickBridgeTarget(layout, random, 41), 0);
}

TEST(BlockNeighbours, BlocksWhateverTheyHoldOnTheBoard) {
    GrowingLayout layout = Layout({7, 7}, {8, 1});
    EXPECT_TRUE(layout.IslandGrid(2, 1) == kBlockedWater && layout.IslandGrid(1, 2) == kBlockedWater);
    EXPECT_TRUE(layout.IslandGrid(0, 1) == 0 && layout.IslandGrid(1, 0) == 0);
}

TEST(GridSize, IsReadInEitherForm) {
    const std::pair<const char*, WantedSize> cases[] = {
        {"9", {false, {9, 9}}},   {" 9x12 ", {false, {9, 12}}}, {"9X12", {false, {9, 12}}}, {" ", {true, {}}},
        {"x7", {false, {0, 7}}},  {"9x", {false, {9, 0}}},      {"abc", {false, {0, 0}}},   {"", {true, {}}},
        {"8.5", {false, {8, 8}}}, {"7x8x9", {false, {7, 8}}}};
    for (const auto& [text, size] : cases)
        EXPECT_EQ(ParseGridSize(text), size) << text;
    EXPECT_TRUE(IsCreatableSize({7, 25}) && IsCreatableSize({25, 7}));
    for (const BoardSize size : {BoardSize{6, 7}, {7, 6}, {26, 25}, {25, 26}})
        EXPECT_FALSE(IsCreatableSize(size));
}

TEST(GridSize, ARandomOneHasSidesOfSevenToTwentyFourEachDrawnAlone) {
    RandomSource random(1);
    std::set<int> rows;
    std::set<int> cols;
    int squares = 0;
    for (int i = 0; i < 5000; ++i) {
        const BoardSize size = SizeOf({true, {}}, random);
        rows.insert(size.rows);
        cols.insert(size.cols);
        squares += size.rows == size.cols;
    }
    EXPECT_TRUE(*rows.begin() == 7 && *rows.rbegin() == 24 && rows.size() == 18);
    EXPECT_EQ(rows, cols);
    EXPECT_NEAR(squares, 5000 / 18, 60);
    EXPECT_EQ(SizeOf({false, {9, 12}}, random), (BoardSize{9, 12}));
}

}  // namespace
}  // namespace tidewalk::test
