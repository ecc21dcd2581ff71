// SPDX-License-Identifier: MIT
// The collection that ships, as it lies in the data folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "generator/character_choices.h"
#include "model/collection_file.h"
#include "solver/solve_puzzle.h"
#include "support/layout_checker.h"
#include "techniques/explain.h"
#include "techniques/grade.h"

namespace tidewalk::test {
namespace {

/// The grade of a path that the techniques tell to its end; nothing where the search has to help.
std::optional<Grade> GradeWithoutTrial(const Puzzle& puzzle) {
    Efforts efforts;
    const bool told = WalkPath(Archipelago(puzzle), nullptr, WithoutEnd,
                               [&](const Position&, const Deduction& deduction) { efforts.Add(deduction); });
    return told ? std::optional(GradeOf(ScoreOf(efforts))) : std::nullopt;
}

bool IsLikePublished(const Puzzle& puzzle) {
    const Character published = CharacterChoices()[1].of(puzzle.Size());
    return IsAsOrdered({.oneSolution = false, .grade = {}, .character = published}, puzzle, WithoutEnd);
}

TEST(ShippedCollection, RisesThroughGradesAndSizesOfBothCharacters) {
    const std::string path = TIDEWALK_DATA_DIR "/puzzles.txt";
    const int count = CountLines(path);
    ASSERT_EQ(count, 200);
    std::set<std::string> records;
    std::map<std::tuple<Grade, int, bool>, int> kinds;
    std::vector<std::pair<Grade, int>> order;
    std::set<std::pair<int, int>> sizes;
    SolverBoard board;
    int choices = 0;
    for (int number = 1; number <= count; ++number) {
        SCOPED_TRACE(number);
        std::string record;
        ASSERT_TRUE(ReadCollectionLine(path, number, record));
        EXPECT_TRUE(records.insert(record).second);
        const auto puzzle = ReadPuzzle(path, number);
        ASSERT_TRUE(puzzle);
        ASSERT_EQ(FaultOfRecord(record, puzzle->Size()), "");
        ASSERT_EQ(CountSolutionsWhile(*puzzle, 2, [&] { return ++choices > 0; }), 1);
        const auto grade = GradeWithoutTrial(*puzzle);
        ASSERT_TRUE(grade);
        sizes.insert({puzzle->Rows, puzzle->Cols});
        const int side = std::max(puzzle->Rows, puzzle->Cols);
        const int band = (side > 9) + (side > 13) + (side > 18);
        order.emplace_back(*grade, band);
        ++kinds[{*grade, band, IsLikePublished(*puzzle)}];
        board.Reset(*puzzle);
        EXPECT_TRUE(SolvePuzzle(board, {.mostTrials = 1000}, WithoutEnd).Solved());
        EXPECT_EQ(PuzzleRecord(PuzzleOf(board)), record);
    }
    EXPECT_EQ(choices, 1830) << "counting takes the shortest way that it knows";
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(sizes.size(), 23u);
    for (int kind = 0; kind < 4 * 4 * 2; ++kind) {
        const auto grade = static_cast<Grade>(kind / 8);
        EXPECT_GE((kinds[{grade, kind / 2 % 4, kind % 2 == 1}]), 6) << NameOf(grade) << " " << kind;
    }
}

}  // namespace
}  // namespace tidewalk::test
