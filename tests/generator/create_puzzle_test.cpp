// SPDX-License-Identifier: MIT
// Puzzles as they grow, and to order.
#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "generator/create_puzzle.h"
#include "generator/grid_size.h"
#include "generator/puzzle_order.h"
#include "support/board_text.h"
#include "support/layout_checker.h"
#include "techniques/grade.h"

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
        {{7, 7}, 1, 2, 0x41c4f0d1},     {{7, 7}, 7, 4, 0xfcd37f86},     {{7, 25}, 12, 3, 0xcc1ad5e4},
        {{25, 7}, 14, 2, 0x92875cd6},   {{24, 9}, 30, 13, 0x454ccf08},  {{12, 12}, 33, 2, 0xa75e1d59},
        {{15, 16}, 35, 13, 0x82be15dd}, {{25, 25}, 47, 38, 0xccd9535d}, {{25, 25}, 1760, 6, 0x20d6989e},
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
        {"9", {false, {9, 9}}}, {" 9X12 ", {false, {9, 12}}}, {" ", {true, {}}}, {"x7", {false, {0, 7}}}};
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
    for (int i = 0; i < 5000; ++i) {
        const BoardSize size = SizeOf({true, {}}, random);
        rows.insert(size.rows);
        cols.insert(size.cols);
    }
    EXPECT_TRUE(*rows.begin() == 7 && *rows.rbegin() == 24 && rows.size() == 18);
    EXPECT_EQ(rows, cols);
}

constexpr Character kPublished{Figures{30, 36}, Figures{.least = 1}, Figures{24, 34}};

Candidate Make(BoardSize size, const PuzzleOrder& order, RandomSource& random, const MayGoOn& mayGoOn = WithoutEnd) {
    static SolverBoard board;
    return CreateCandidate(board, size, order, random, mayGoOn);
}

/// What the order asks for and the puzzle lacks, found out without what made it; "" for nothing.
std::string Lack(const PuzzleOrder& order, const Puzzle& puzzle) {
    int pairs = 0;
    int doubles = 0;
    for (const Link& link : puzzle.LinkList) {
        pairs += link.Bridges() > 0;
        doubles += link.Bridges() == 2;
    }
    const int islands = puzzle.IslandCount();
    const auto within = [](const std::optional<Figures>& figures, double figure) {
        return !figures || (figures->least <= figure && figure <= figures->most);
    };
    if (!within(order.character.density, 100.0 * islands / puzzle.CellCount())) return "density";
    if (!within(order.character.loops, pairs - (islands - 1))) return "loops";
    if (!within(order.character.doubles, 100.0 * doubles / pairs)) return "doubles";
    const Assessment found = AssessPuzzle(puzzle, WithoutEnd);
    if ((order.oneSolution || order.grade) && found.solutions != 1) return "one solution";
    return !order.grade || GradeOf(found.score.value()) == *order.grade ? "" : "grade";
}

TEST(PuzzleOrder, WhatFitsIsAsOrderedAtEverySize) {
    const PuzzleOrder orders[] = {
        {},
        {true, Grade::VEasy, {}},
        {true, Grade::Easy, {}},
        {true, Grade::Hard, {}},
        {true, Grade::VHard, {}},
        {true, {}, kPublished},
        {true, Grade::VHard, kPublished},
        {true, {}, {Figures{41, 45}, {}, {}}},
        {true, {}, {Figures{8, 16}, Figures{0, 0}, {}}},
        {true, {}, {{}, Figures{2, 3}, Figures{0, 10}}},
        {false, {}, {Figures{22, 26}, Figures{3, 4}, Figures{60, 80}}},
        {true, {}, {{}, {}, Figures{90, 100}}},
    };
    for (const BoardSize size : {BoardSize{7, 7}, {7, 16}, {13, 12}}) {
        for (const PuzzleOrder& order : orders) {
            RandomSource random(1);
            Candidate candidate;
            // The least that is seen often enough is a very hard 7x7: one of fifty.
            for (int tries = 1000; tries > 0 && !candidate.fits; --tries)
                candidate = Make(size, order, random);
            const std::string record = PuzzleRecord(candidate.created.puzzle);
            ASSERT_TRUE(candidate.fits) << "order " << &order - orders << record;
            EXPECT_EQ(FaultOfRecord(record, size), "") << record;
            EXPECT_EQ(Lack(order, candidate.created.puzzle), "") << "order " << &order - orders << record;
        }
    }
}

TEST(PuzzleOrder, TheLargestBoardTakesFewCandidates) {
    RandomSource random(1);
    for (const auto& grade : {std::optional<Grade>(), {Grade::VEasy}}) {
        int candidates = 1;
        while (candidates < 10 && !Make({25, 25}, {true, grade, kPublished}, random).fits)
            ++candidates;
        EXPECT_LT(candidates, 10);
    }
}

TEST(PuzzleOrder, WithoutAWishACandidateIsWhatSimplyGrows) {
    SolverBoard board;
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        RandomSource random(seed);
        RandomSource again(seed);
        const BoardSize size{7 + static_cast<int>(seed % 9), 9};
        const Candidate candidate = Make(size, {seed % 2 == 0, {}, {}}, random);
        const CreatedPuzzle grown = CreatePuzzle(board, size, again, WithoutEnd);
        EXPECT_EQ(candidate.created.puzzle, grown.puzzle);
        EXPECT_EQ(candidate.created.trials, grown.trials);
        EXPECT_EQ(random.Draw(1000), again.Draw(1000));
        EXPECT_EQ(candidate.fits, grown.puzzle.IslandCount() >= FewestIslands(size) &&
                                      (seed % 2 == 1 || AssessPuzzle(grown.puzzle, WithoutEnd).solutions == 1));
    }
}

TEST(PuzzleOrder, StoppedACandidateDoesNotFitButIsABoard) {
    for (const PuzzleOrder& order : {PuzzleOrder{true, {}, kPublished}, {true, Grade::VHard, {}}}) {
        bool fits = false;
        for (int moment = 1; !fits && moment < 400; moment += 1 + moment / 4) {
            RandomSource random(3);
            int asked = 0;
            const Candidate candidate = Make({13, 13}, order, random, [&] { return ++asked < moment; });
            fits = candidate.fits;
            EXPECT_LT(asked, moment + 10) << "a no ends it soon";
            EXPECT_TRUE(!candidate.fits || asked < moment);
            EXPECT_EQ(FaultOfLayout(candidate.created.puzzle), "");
            EXPECT_TRUE(!candidate.created.solved || IsValidSolution(candidate.created.puzzle));
        }
    }
}

TEST(PuzzleOrder, NoBoardHasFewerThanHalfOfTheUsualIslands) {
    const PuzzleOrder any{false, {}, {}};
    const Puzzle five = PuzzleFrom({"2-----2", "|.....|", "|.....|", "|.....|", "|.....|", "|.....|", "2-2---2"});
    ASSERT_TRUE(IsValidSolution(five) && five.IslandCount() == 5);
    EXPECT_FALSE(IsAsOrdered(any, five, WithoutEnd));
    EXPECT_TRUE(IsAsOrdered(
        any, PuzzleFrom({"2---3-2", "|...|.|", "|...|.|", "|...|.|", "|...|.|", "|...|.|", "2---3-2"}), WithoutEnd));
    EXPECT_EQ(FewestIslands({7, 7}), 6);
    EXPECT_EQ(FewestIslands({25, 25}), 48);
}

TEST(PuzzleOrder, NonsenseCannotBeOrdered) {
    const BoardSize size{7, 7};
    for (const Character& character : {Character{Figures{46, 100}, {}, {}},
                                       {Figures{0, 10}, {}, {}},
                                       {Figures{40, 30}, {}, {}},
                                       {{}, Figures{.least = 5}, {}},
                                       {{}, {}, Figures{.least = 101}}}) {
        EXPECT_FALSE(CanBeOrdered(character, size));
    }
    EXPECT_TRUE(CanBeOrdered({}, size));
    EXPECT_TRUE(CanBeOrdered({Figures{44, 100}, Figures{4, 9}, Figures{100, 100}}, size));
    EXPECT_TRUE(CanBeOrdered({Figures{0, 13}, Figures{0, 0}, Figures{0, 0}}, size));
}

}  // namespace
}  // namespace tidewalk::test
