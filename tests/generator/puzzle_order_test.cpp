// SPDX-License-Identifier: MIT
#include "generator/puzzle_order.h"

#include <gtest/gtest.h>

#include "support/board_text.h"
#include "support/layout_checker.h"
#include "techniques/grade.h"

namespace tidewalk::test {
namespace {

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
        {true, Grade::VEasy, kPublished},
        {true, Grade::Easy, kPublished},
        {true, Grade::Hard, kPublished},
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
    EXPECT_EQ(FewestIslands({7, 25}), FewestIslands({25, 7}));
    EXPECT_EQ(FewestIslands({25, 25}), 48);
}

TEST(PuzzleOrder, NonsenseCannotBeOrdered) {
    const BoardSize size{7, 7};
    for (const Character& character : {Character{Figures{46, 100}, {}, {}},
                                       {Figures{0, 10}, {}, {}},
                                       {Figures{20, 20}, {}, {}},
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
