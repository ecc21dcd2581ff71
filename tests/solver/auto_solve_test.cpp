// SPDX-License-Identifier: MIT
#include "solver/auto_solve.h"

#include <gtest/gtest.h>

#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "solver/difficulty.h"
#include "solver/valid_solution.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kUnable = "Unable to solve\r\nPlease check puzzle layout";
const std::vector<std::string> kTwoSolutions{"3.3", "...", "3.3"};

TEST(AutoSolve, ShowsAndWritesTheSolution) {
    TestGame game({Record(kTwoSolutions)});
    ASSERT_EQ(game.Load(1), 0);
    game.ShowLines = 0;
    game.pictures.surface.calls.clear();
    mnuautosol_Click(game);
    EXPECT_EQ(game.window.statusTexts, (std::vector<std::string>{"Auto solving ...", "Solved"}));
    EXPECT_EQ(game.folder.Read("collection-solution.tdw"), " 3, 3, 8;D;3=3,|.|,3=3,\r\n");
    EXPECT_EQ(game.pictures.surface.Count("line"), 6) << "two single bridges and two double ones";
    EXPECT_EQ(game.ShowLines, 0);
    EXPECT_EQ(game.BusyFlag, NoValue);
    EXPECT_EQ(game.window.pointer, Pointer::Default);
    EXPECT_EQ(CheckLinkTotals(game), 0);
    EXPECT_EQ(game.Load(1), 0);
    EXPECT_EQ(game.LinkCount(), 0) << "the collection itself is left alone";
}

TEST(AutoSolve, WhatCannotBeSolvedComesBack) {
    TestGame game({Record({"1-1", "...", "1.1"})});
    ASSERT_EQ(game.Load(1), 0);
    game.prompts.Expect(kUnable, "vbcritical+vbok", 1);
    mnuautosol_Click(game);
    EXPECT_EQ(game.LinkCount(), 1);
    EXPECT_EQ(game.window.texts[Control::pb], "");
    EXPECT_FALSE(std::filesystem::exists("collection-solution.tdw"));
}

TEST(AutoSolve, AFailureLeavesNothingOfItselfOnTheBoard) {
    // The rules finish two of the islands before nothing fits any more.
    TestGame game({Record({"1.2.2", ".....", "..1.3"})});
    ASSERT_EQ(game.Load(1), 0);
    game.prompts.Expect("puzzle 9 not found", "vbinformation+vbok", 1);
    ASSERT_EQ(game.Load(9), 1) << "its file stays open";
    game.prompts.Expect(kUnable, "vbcritical+vbok", 1);
    mnuautosol_Click(game);
    EXPECT_EQ(game.IslandGrid(1, 1), 1);
    EXPECT_EQ(game.PuzzleNumber, 1);

    std::filesystem::remove("collection.tdw");
    game.BridgeState.Set(1, 3, 1);
    game.prompts.Expect("puzzle 1 not found", "vbinformation+vbok", 1);
    game.prompts.Expect(kUnable, "vbcritical+vbok", 1);
    game.pictures.surface.calls.clear();
    mnuautosol_Click(game);
    EXPECT_EQ(game.IslandGrid(1, 1), 1) << "the numbers are back even without their file";
    EXPECT_EQ(game.LinkCount(), 0);
    EXPECT_EQ(game.BridgeState(1, 3), 1);
    EXPECT_GE(game.pictures.surface.Count("print"), 5);
}

TEST(AutoSolve, ASolutionThatCannotBeWrittenIsStillShown) {
    TestGame game({Record(kTwoSolutions)});
    ASSERT_EQ(game.Load(1), 0);
    std::filesystem::create_symlink("/dev/full", "collection-solution.tdw");
    mnuautosol_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb].find("Solved, but not written: "), 0U);
    EXPECT_FALSE(game.files.IsOpen(1));
    EXPECT_EQ(CheckLinkTotals(game), 0);
}

TEST(AutoSolve, RefusesWithoutIslandsOrDuringAJob) {
    TestGame game({Record({"...", "..."})});
    game.prompts.Expect("There is no puzzle to solve", "vbinformation+vbok", 1);
    mnuautosol_Click(game);
    ASSERT_EQ(game.Load(1), 0);
    game.prompts.Expect("Set the puzzle first", "vbinformation+vbok", 1);
    mnuautosol_Click(game);
    EXPECT_EQ(game.window.pointer, Pointer::Default);
    game.BusyFlag = YesValue;
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    mnuautosol_Click(game);
}

TEST(AutoSolve, ASecondJobCannotNestAndCancelBringsThePuzzleBack) {
    TestGame game({Record(kTwoSolutions)});
    ASSERT_EQ(game.Load(1), 0);
    game.clock.step = 50;
    game.events.happen = [&] {
        game.events.happen = nullptr;
        game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
        mnuautosol_Click(game);
        game.CancelFlag = YesValue;
        game.prompts.Expect(kUnable, "vbcritical+vbok", 1);
    };
    mnuautosol_Click(game);
    EXPECT_EQ(game.IslandGrid(1, 1), 3);
}

TEST(AutoSolve, APuzzleTypedInTheMiddleStays) {
    TestGame game({Record(kTwoSolutions), Record({"1-1", "...", "..."})});
    ASSERT_EQ(game.Load(1), 0);
    game.clock.step = 50;
    game.events.happen = [&] {
        game.events.happen = nullptr;
        game.window.texts[Control::PuzNumNow] = "2";
        PuzNumNow_KeyPress(game, kEnterKey);
    };
    mnuautosol_Click(game);
    EXPECT_EQ(game.PuzzleNumber, 2);
    EXPECT_EQ(game.IslandGrid(1, 1), 1);
    EXPECT_EQ(game.LinkCount(), 1);
    EXPECT_EQ(game.BusyFlag, NoValue);
}

TEST(AutoSolve, NamesTheSolutionBeforeTheLastDot) {
    EXPECT_EQ(SolutionPath("/a.b/c.tdw"), "/a.b/c-solution.tdw");
    EXPECT_EQ(SolutionPath("abc"), "-solutionabc");
}

TEST(Difficulty, HasFourNames) {
    const std::pair<int, std::string_view> cases[] = {{-3, "VEasy"}, {0, "VEasy"}, {1, "Easy"},  {5, "Easy"},
                                                      {6, "Hard"},   {10, "Hard"}, {11, "VHard"}};
    for (const auto& [score, name] : cases)
        EXPECT_EQ(DifficultyName(score), name) << score;
}

}  // namespace
}  // namespace tidewalk::test
