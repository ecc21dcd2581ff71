// SPDX-License-Identifier: MIT
// The commands AutoSolve and Solutions.
#include <filesystem>

#include "board/board_keys.h"
#include "generator/new_puzzle.h"
#include "model/load_puzzle.h"
#include "solver/auto_solve.h"
#include "solver/show_solutions.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kUnable = "Unable to solve\r\nPlease check puzzle layout";
/// Four islands in a ring, with two solutions, which the rules alone do not find.
const Lines kRing{"3.3", "...", "3.3"};
/// The rules finish two of the islands before nothing fits any more.
const Lines kHopeless{"1.2-2", ".....", "..1.3"};

TEST(AutoSolve, ShowsAndWritesTheSolution) {
    LoadedGame game({Record(kRing)});
    game.world.step = 50;
    std::size_t open = 0;
    std::size_t choices = 0;
    game.world.happen = [&] {
        open = std::max(open, game.List1.Lines().size());
        choices = std::max(choices, game.List2.Lines().size());
    };
    game.collection.leftOpen = true;
    game.Run(mnuautosol_Click);
    EXPECT_EQ(open * 10 + choices, 42U) << "the work lists show while it works";
    EXPECT_TRUE(game.List1.Lines().empty());
    EXPECT_EQ(game.List2.Lines(),
              (Lines{"002 2 02 000 000 001 007*1 007*2 ", "001 3 02 000 000 001 003*2 007*1 007*2 "}));
    EXPECT_TRUE(game.ShowsSolution());
    EXPECT_EQ(game.board.puzzle.LinkCount(), 8) << "every pair from both ends";
    EXPECT_EQ(game.folder.Read("collection-solution.tdw"), " 3, 3, 8;D;3=3,|.|,3=3,\r\n");
    EXPECT_EQ(game.folder.Read("collection.tdw"), Joined({Record(kRing)}));
    EXPECT_FALSE(game.collection.leftOpen);
}

TEST(AutoSolve, WhatCannotBeSolvedComesBack) {
    for (const bool isThere : {true, false}) {
        LoadedGame game({Record(kHopeless)});
        game.board.BridgeState.Set(1, 3, 1);
        game.board.OpenNeighbours[1].Append(3);
        game.collection.leftOpen = true;
        if (!isThere) {
            std::filesystem::remove("collection.tdw");
            game.world.Expect("puzzle 1 not found", kInformation);
        }
        game.world.Expect(kUnable, kCritical);
        game.Run(mnuautosol_Click);
        EXPECT_EQ(game.world.Seen(), std::string("busy, status: Auto solving ..., events, progress: 0 of 0, ") +
                                         (isThere ? "number: 1" : "box") + ", status: , not busy, box, not busy");
        const Puzzle given = PuzzleFrom(kHopeless);
        EXPECT_EQ(game.board.puzzle, isThere ? given : WithoutLinks(given));
        EXPECT_EQ(game.board.BridgeState(1, 3), isThere ? 0 : 1);
        EXPECT_TRUE(game.board.OpenNeighbours[1].Empty());
        EXPECT_EQ(game.List1.Lines().size(), 1U) << "where the solver stood";
        EXPECT_FALSE(std::filesystem::exists("collection-solution.tdw"));
    }
}

TEST(AutoSolve, ASolutionThatCannotBeWrittenIsStillShown) {
    LoadedGame game({Record(kRing)});
    std::filesystem::create_directory("collection-solution.tdw");
    game.Run(mnuautosol_Click);
    EXPECT_EQ(game.world.Status(),
              "Solved, but not written: " + game.folder.Path("collection-solution.tdw") + ": Is a directory");
    EXPECT_TRUE(game.ShowsSolution());
}

TEST(AutoSolve, TellsThatARecordHasNoRoomForBridgesBetweenTouchingIslands) {
    LoadedGame game({Record({"11"})});
    for (const std::string name : {"Puzzle# 1", "Imported puzzle"}) {
        game.Run(mnuautosol_Click);
        EXPECT_EQ(game.world.Status().find("Solved. " + name + " is written without its bridges between touching"), 0U);
        game.Run(TakeImported, game.board.puzzle, "grid.txt");
    }
}

TEST(AutoSolve, WantsAPuzzleWithIslands) {
    TestGame game({Record({"...", "..."})});
    game.world.Expect("There is no puzzle to solve", kInformation);
    game.Run(mnuautosol_Click);
    game.Load(1);
    game.world.Expect("Set the puzzle first", kInformation);
    game.Run(mnuautosol_Click);
    EXPECT_EQ(SolutionPath("/a.b/c"), "/a.b/c-solution");
    EXPECT_EQ(SolutionPath("abc"), "-solutionabc");
}

TEST(Solutions, ShowsTheOnlyOneOrTwoAndWhereTheyDifferAndTouchesNothing) {
    TestGame game({Record(kRing), kSmallPuzzle});
    const FoundSolutions& shown = game.world.solutions;
    game.Load(1);
    for (const BoardKey key : {BoardKey::First, BoardKey::First, BoardKey::Lay, BoardKey::Right, BoardKey::Lay})
        game.Run(Picture1_KeyDown, key);
    game.world.Seen();
    const BridgeTable laid = game.board.BridgeState;
    game.Run(mnusolutions_Click);
    EXPECT_EQ(game.world.Seen(),
              "busy, status: Looking for solutions ..., events, status: , progress: 0 of 0, not busy, solutions");
    EXPECT_EQ(game.board.BridgeState, laid);
    EXPECT_EQ(shown.caption, "This puzzle has several solutions. Two of them:");
    ASSERT_EQ(shown.solutions.size(), 2U);
    ASSERT_EQ(shown.differences.size(), 4U);
    const bool twoFirst = shown.solutions[0].LinkList.at(0).Bridges() == 2;
    EXPECT_EQ(shown.differences[0].text, std::string("Row 1, column 1 to row 1, column 3: ") +
                                             (twoFirst ? "two bridges in the first, one in the second"
                                                       : "one bridge in the first, two in the second"));
    game.Load(2);
    game.Run(mnusolutions_Click);
    EXPECT_EQ(shown.caption, "This puzzle has exactly one solution.");
    EXPECT_EQ(PuzzleRecord(shown.solutions.at(0)).substr(11), std::string(kSmallPuzzle).substr(11));
    EXPECT_TRUE(shown.differences.empty());
}

TEST(Solutions, SaysThatThereIsNoneAndWhenItWasStopped) {
    LoadedGame game({Record({"3.3"}), Record(kRing), kSmallPuzzle});
    game.world.Expect("No bridges solve this puzzle.", kInformation);
    game.Run(mnusolutions_Click);
    game.Load(2);
    game.world.step = 100;
    game.world.happen = [&] { game.Run(cmdcancel_Click); };
    game.Run(mnusolutions_Click);
    EXPECT_EQ(game.world.Status(), "The solutions are not known: the search was stopped");
    game.world.happen = [&] {
        if (game.collection.PuzzleNumber == 2) game.TypeNumber("3");
    };
    game.Run(mnusolutions_Click);
    EXPECT_EQ(game.world.Status(), "");
    EXPECT_TRUE(game.world.solutions.solutions.empty()) << "nothing was shown";
}

}  // namespace
}  // namespace tidewalk::test
