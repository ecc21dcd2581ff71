// SPDX-License-Identifier: MIT
#include "generator/create_puzzle.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "generator/grid_size.h"
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
        EXPECT_EQ(created.trials, grade) << record;
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
