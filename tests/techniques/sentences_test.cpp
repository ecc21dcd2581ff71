// SPDX-License-Identifier: MIT
// Each technique on a small position, and what it says there.
#include "techniques/sentences.h"

#include <gtest/gtest.h>

#include "support/board_text.h"
#include "techniques/deducer.h"
#include "techniques/explain.h"
#include "techniques/hint.h"

namespace tidewalk::test {
namespace {

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
         "last [4-2 connect]: The 4 at row 1, column 1 needs 4 bridges, and its neighbours can take just as many: two "
         "to the 3 on its right and two to the 3 below it."},
        {{"3.1", "...", "3.."},
         {},
         "last [3-2 connect]: The 3 at row 1, column 1 needs 3 bridges, and its neighbours can take just as many: one "
         "to the 1 on its right and two to the 3 below it."},
        {{"4.3.2", ".....", "3.4.3", ".....", "2.3.2"},
         {{1, 3, 1, false}, {1, 11, 1, false}},
         "last [2-R1 connect]: The 4 at row 1, column 1 needs two more bridges, and its neighbours can take just as "
         "many: one to the 3 on its right and one to the 3 below it."},
        {{"3.3", "...", "3.3"},
         {},
         "least [3-2 connect part1]: The 3 at row 1, column 1 needs 3 bridges. Leaving out the 3 on its right or the 3 "
         "below it, it could get only two, so at least one bridge goes to each of them."},
        {{"2.5.2", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [5-3 links connect]: The 5 at row 1, column 3 needs 5 bridges. Leaving out the 2 on its left, the 2 on "
         "its right or the 4 below it, it could get only 4, so at least one bridge goes to each of them."},
        {{"1.4.2", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [4-3-O1 connect]: The 4 at row 1, column 3 needs 4 bridges. Leaving out the 2 on its right or the 4 "
         "below it, it could get only 3, so at least one bridge goes to each of them."},
        {{"1.3.1", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [3-3-2 1s connect]: The 3 at row 1, column 3 needs 3 bridges. Without the 4 below it, the others can "
         "take only two, so at least one bridge goes there."},
        {{"2.1.2", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "least [2-1 connect]: The 2 at row 1, column 1 needs two bridges. Without the 3 below it, the others can take "
         "only one, so at least one bridge goes there."},
        {{"2.5.2", ".....", "3.4.3", ".....", "2.3.2"},
         {{1, 3, 2, false}},
         "least [3-2 connect part1]: The 5 at row 1, column 3 needs 3 more bridges. Leaving out the 2 on its right or "
         "the "
         "4 below it, it could get only two, so at least one bridge goes to each of them."},
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
        {{"2.2.2", ".....", "3.4.3", ".....", "2.3.2"},
         {},
         "cutoff: If the 2 at row 1, column 1 gave two bridges to the 2 on its right, a group would be complete and "
         "cut off from the other islands. So at least one bridge goes to the 3 below it."},
        {{"2.3.2........", ".............", "3.4.3........", ".............", "2.3.2...2.3.2", ".............",
          "........3.4.3", ".............", "........2.3.2"},
         {},
         "wayout: The 2 at row 5, column 5 and the 8 islands behind it hang together with all the other islands only "
         "by way of the 2 on its right. So at least one bridge joins these two."},
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
