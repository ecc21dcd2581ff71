// SPDX-License-Identifier: MIT
// Whole ways to solutions, the hints on them, and what is said of each step.
#include <gtest/gtest.h>

#include <random>

#include "generator/create_puzzle.h"
#include "support/board_text.h"
#include "support/random_boards.h"
#include "techniques/deducer.h"
#include "techniques/explain.h"
#include "techniques/grade.h"
#include "techniques/hint.h"
#include "techniques/sentences.h"

namespace tidewalk::test {
namespace {

constexpr int kAll = 60;

/// A crowded board of 4 to 8 cells a side with at least one solution and not too many to look at.
Puzzle CrowdedPuzzle(std::mt19937& random, std::vector<SpanBridges>& solutions) {
    const auto side = [&] { return 4 + static_cast<int>(random() % 5); };
    for (;;) {
        const Puzzle puzzle = MakeRandomPuzzle(random, {side(), side()}, 3, false);
        solutions = FindSolutions(Archipelago(puzzle), kAll, WithoutEnd).value();
        if (!solutions.empty() && solutions.size() < kAll) return puzzle;
    }
}

/// Whether a solution has what a deduction demands.
bool Holds(const SpanBridges& solution, const Deduction& deduction) {
    const auto on = [&](const SpanBound& bound) { return solution[static_cast<std::size_t>(bound.span)]; };
    for (const SpanBound& must : deduction.must) {
        if (on(must) < must.bridges) return false;
    }
    for (const SpanBound& cannot : deduction.cannot) {
        if (on(cannot) > cannot.bridges) return false;
    }
    return true;
}

TEST(WalkPath, SaysNothingThatASolutionContradictsAndEndsAtTheOnlyOne) {
    std::mt19937 random(11);
    int single = 0;
    std::array<int, kTechniqueCount> used{};
    for (int i = 0; i < 1500; ++i) {
        std::vector<SpanBridges> solutions;
        const Archipelago board(CrowdedPuzzle(random, solutions));
        const SpanBridges* only = solutions.size() == 1 ? &solutions.front() : nullptr;
        const bool solved = WalkPath(board, only, WithoutEnd, [&](const Position& before, const Deduction& deduction) {
            ++used[static_cast<std::size_t>(deduction.technique)];
            for (const SpanBridges& solution : solutions)
                ASSERT_TRUE(Holds(solution, deduction)) << i << TechniqueId(deduction.technique);
            Position after = before;
            Apply(after, deduction);
            ASSERT_GT(after.Changes(), before.Changes()) << "a step says something new";
            ASSERT_TRUE(deduction.technique != Technique::NoMore || deduction.must.empty());
        });
        EXPECT_EQ(solved, only != nullptr) << i;
        single += only != nullptr ? 1 : 0;
    }
    EXPECT_GT(single, 500);
    for (int technique = 0; technique < kTechniqueCount - 1; ++technique)
        EXPECT_GT(used[static_cast<std::size_t>(technique)], 0) << technique;
    EXPECT_EQ(used.back(), 0) << "trials";
}

TEST(FindByTrial, TellsASpanOfTheSolution) {
    const Archipelago board(PuzzleFrom({"1.2.1"}));
    Position position(board);
    position.Lay(0, 1);
    const Deduction deduction = FindByTrial(position, {1, 1});
    EXPECT_EQ(
        Sentence(position, deduction),
        "None of the other techniques helps here. Trying out what is left shows that one bridge joins the 2 at row "
        "1, column 3 and the 1 on its right.");
    EXPECT_EQ(deduction.must.front().bridges, 1);
}

TEST(ScoreOf, TheHardestTechniqueSetsTheName) {
    // By how often they are needed: cut off, ways out, near and far suppositions, trials.
    const std::pair<Efforts, int> scores[] = {{{0, 0, 0, 0, 0}, 0},  {{1, 0, 0, 0, 0}, 1},  {{3, 0, 0, 0, 0}, 2},
                                              {{1, 1, 0, 0, 0}, 2},  {{99, 9, 0, 0, 0}, 5}, {{9, 0, 1, 0, 0}, 6},
                                              {{0, 0, 6, 0, 0}, 11}, {{0, 0, 0, 1, 0}, 11}, {{0, 0, 1, 2, 0}, 14},
                                              {{0, 0, 1, 1, 2}, 29}};
    for (const auto& [efforts, score] : scores)
        EXPECT_EQ(ScoreOf(efforts), score);
}

TEST(AssessPuzzle, SeveralOneNoneOrNotKnown) {
    const Assessment several = AssessPuzzle(PuzzleFrom({"3.3", "...", "3.3"}), WithoutEnd);
    EXPECT_EQ(several.solutions, 2);
    EXPECT_FALSE(several.score);
    EXPECT_EQ(AssessPuzzle(PuzzleFrom({"3.3"}), WithoutEnd).solutions, 0);
    EXPECT_EQ(AssessPuzzle(PuzzleFrom({"2.2"}), WithoutEnd).score, 0);
    EXPECT_FALSE(AssessPuzzle(PuzzleFrom({"3.3", "...", "3.3"}), [] { return false; }).solutions);
    int asked = 0;
    const Assessment ungraded = AssessPuzzle(PuzzleFrom({"2.2"}), [&] { return ++asked > 1; });
    EXPECT_EQ(ungraded.solutions, 1);
    EXPECT_FALSE(ungraded.score);
}

/// Bridges and marks that a player may have laid, right or wrong.
std::vector<PlayedPair> Played(std::mt19937& random, const Archipelago& board, const SpanBridges& solution,
                               bool right) {
    std::vector<PlayedPair> played;
    for (int span = 0; span < board.SpanCount(); ++span) {
        const int most = right ? solution[static_cast<std::size_t>(span)] : kMostBridges;
        const auto& ends = board.SpanAt(span).ends;
        const int bridges = random() % 3 == 0 ? static_cast<int>(random() % static_cast<unsigned>(most + 1)) : 0;
        const bool noMore = random() % 9 == 0 && (!right || bridges == most);
        if (bridges > 0 || noMore)
            played.push_back({board.IsleAt(ends[1]).id, board.IsleAt(ends[0]).id, bridges, noMore});
    }
    return played;
}

TEST(FindHint, OfEveryPositionIsRight) {
    std::mt19937 random(5);
    for (int i = 0; i < 600; ++i) {
        std::vector<SpanBridges> solutions;
        const Archipelago board(CrowdedPuzzle(random, solutions));
        const SpanBridges& solution = solutions.front();
        const bool right = i % 2 == 0;
        const auto played = Played(random, board, solution, right);
        const HintStep wanted = i % 3 == 0 ? HintStep::Any : HintStep::WithBridges;
        const Hint hint = FindHint(board, solutions, played, wanted, WithoutEnd);
        if (solutions.size() > 1) {
            EXPECT_EQ(hint.kind, HintKind::Several);
            continue;
        }
        bool fits = true;
        int laid = 0;
        for (const PlayedPair& pair : played) {
            const int bridges = solution[static_cast<std::size_t>(SpanBetween(board, pair.a, pair.b))];
            fits = fits && pair.bridges <= bridges && (!pair.noMore || pair.bridges == bridges);
            laid += pair.bridges;
        }
        EXPECT_EQ(hint.kind == HintKind::Mistake, !fits);
        EXPECT_EQ(hint.mistakes.empty(), fits);
        EXPECT_TRUE(fits || !right);
        if (hint.kind != HintKind::Step) continue;
        for (const Step& step : hint.steps)
            EXPECT_TRUE(Holds(solution, step.deduction)) << step.text;
        EXPECT_TRUE(wanted == HintStep::Any || !hint.steps.back().deduction.must.empty());
    }
}

TEST(FindHint, NamesWhatIsWrong) {
    const Archipelago board(PuzzleFrom({"1.1", "...", "1.1"}));
    EXPECT_EQ(FindHint(board, FindSolutions(board, 2, WithoutEnd), {}, HintStep::Any, WithoutEnd).kind,
              HintKind::NoSolution);
    const Archipelago line(PuzzleFrom({"1.2.1"}));
    const auto only = FindSolutions(line, 2, WithoutEnd);
    const auto kindFor = [&](const std::vector<PlayedPair>& played) {
        return FindHint(line, only, played, HintStep::Any, WithoutEnd).kind;
    };
    EXPECT_EQ(kindFor({{1, 3, 2, false}}), HintKind::Mistake);
    EXPECT_EQ(kindFor({{1, 5, 1, false}}), HintKind::Mistake) << "they do not see each other";
    EXPECT_EQ(kindFor({{3, 1, 1, true}}), HintKind::Step);
    EXPECT_EQ(kindFor({{3, 1, 1, false}, {3, 5, 1, false}}), HintKind::Finished);
    const auto kindUnknown = [](const Rows& rows, const std::vector<PlayedPair>& played) {
        return FindHint(Archipelago(PuzzleFrom(rows)), std::nullopt, played, HintStep::WithBridges, WithoutEnd).kind;
    };
    EXPECT_EQ(kindUnknown({"2.2"}, {{1, 3, 2, false}}), HintKind::Finished);
    EXPECT_EQ(kindUnknown({"1.1"}, {{1, 3, 2, false}}), HintKind::Nothing) << "too many";
    EXPECT_EQ(kindUnknown({"1.1", "...", "1.1"}, {{1, 3, 1, false}, {7, 9, 1, false}}), HintKind::Nothing) << "parted";
    EXPECT_EQ(kindUnknown({".1.", "1.1", ".1."}, {{2, 8, 1, false}, {4, 6, 1, false}}), HintKind::Nothing) << "crossed";
}

/// What is told first of a board on which some bridges lie.
struct Told {
    Rows rows;
    std::vector<PlayedPair> played;
    std::string text;  ///< with the technique and the named rule before it
};

std::string FirstStep(const Told& told) {
    const Archipelago board(PuzzleFrom(told.rows));
    const Hint hint = FindHint(board, std::nullopt, told.played, HintStep::Any, WithoutEnd);
    if (hint.steps.empty()) return "nothing";
    const Step& step = hint.steps.front();
    std::string text(TechniqueId(step.deduction.technique));
    if (step.deduction.rule) text += " [" + std::string(RuleName(*step.deduction.rule)) + "]";
    return text + ": " + step.text;
}

TEST(Sentence, TellsEachTechniqueWithTheNumbersOfTheCase) {
    const Told cases[] = {
        {{"1.2"},
         {},
         "last [1-1 connect]: The 1 at row 1, column 1 has only one neighbour, the 2 on its right: its bridge goes "
         "there."},
        {{"4.3", "...", "3.."},
         {},
         "last [4-2 connect]: The 4 at row 1, column 1 needs four bridges, and its neighbours can take just as many: "
         "two to the 3 on its right and two to the 3 below it."},
        {{"4.3.2", ".....", "3.4.3", ".....", "2.3.2"},
         {{1, 3, 1, false}, {1, 11, 1, false}},
         "last [2-R1 connect]: The 4 at row 1, column 1 needs two more bridges, and its neighbours can take just as "
         "many: one to the 3 on its right and one to the 3 below it."},
        {{"2.5.2", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [5-3 links connect]: The 5 at row 1, column 3 needs five bridges. Leaving out the 2 on its left, the 2 "
         "on its right or the 4 below it, it could get only four, so at least one bridge goes to each of them."},
        {{"1.3.1", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [3-3-2 1s connect]: The 3 at row 1, column 3 needs three bridges. Without the 4 below it, the others "
         "can take only two, so at least one bridge goes there."},
        {{"2.5.2", ".....", "3.4.3", ".....", "2.3.2"},
         {{1, 3, 2, false}},
         "least [3-2 connect part1]: The 5 at row 1, column 3 needs three more bridges. Leaving out the 2 on its right "
         "or the 4 below it, it could get only two, so at least one bridge goes to each of them."},
        {{"2.3.2", ".....", "3.4.3", ".....", "2.3.2"},
         {{1, 3, 1, false}, {1, 11, 1, false}},
         "nomore: The 2 at row 1, column 1 has all its bridges: no more go to the 3 on its right and the 3 below it."},
        {{"2.2.2", ".....", "3...3", ".....", "2.2.2"},
         {{11, 15, 1, false}},
         "nomore: The bridge between the 3 at row 3, column 1 and the 3 at row 3, column 5 lies across: none can join "
         "the 2 at row 1, column 3 and the 2 below it."},
        {{"1.1.1", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "cutoff: If the 1 at row 1, column 1 gave one bridge to the 1 on its right, a group would be complete and cut "
         "off from the other islands. So at least one bridge goes to the 3 below it and no bridge goes to the 1 on its "
         "right."},
        {{"2.3.2........", ".............", "3.4.3........", ".............", "2.3.2...2.3.2", ".............",
          "........3.4.3", ".............", "........2.3.2"},
         {},
         "wayout: The 2 at row 5, column 5 and the eight islands behind it hang together with all the other islands "
         "only by way of the 2 on its right. So at least one bridge joins these two."},
        {{"....", "2.23", "32.3", "4..2", "331.", "...."},
         {{7, 8, 1, false}, {17, 18, 1, false}, {5, 9, 1, false}, {8, 12, 1, false}, {13, 17, 1, false}},
         "suppose: If a bridge joined the 2 at row 2, column 3 and the 1 below it, the 4 at row 4, column 1 could not "
         "get all its bridges. So no bridge lies there."},
        {{".3.3.1", "...332", "......", ".3231."},
         {{2, 4, 1, false},
          {10, 11, 1, true},
          {11, 12, 1, false},
          {20, 21, 1, false},
          {2, 20, 1, false},
          {10, 22, 1, false}},
         "suppose: If no bridge joined the 3 at row 1, column 4 and the 1 on its right, one bridge would follow from "
         "another until the 3 at row 4, column 4 could not get all its bridges. So at least one bridge lies there."},
        {{".2.2", ".3..", "..14", "..23", ".21."},
         {{15, 16, 1, false}, {2, 6, 1, false}, {4, 12, 1, false}, {12, 16, 1, false}, {6, 18, 1, false}},
         "suppose: If no bridge joined the 1 at row 3, column 3 and the 4 on its right, a group with the 1 at row 3, "
         "column 3 would be cut off from the other islands. So at least one bridge lies there."},
    };
    for (const Told& told : cases)
        EXPECT_EQ(FirstStep(told), told.text);
}

}  // namespace
}  // namespace tidewalk::test
