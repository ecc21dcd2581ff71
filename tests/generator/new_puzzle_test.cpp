// SPDX-License-Identifier: MIT
#include "generator/new_puzzle.h"

#include <gtest/gtest.h>

#include "model/job.h"
#include "model/load_puzzle.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kBadSize = "Puzzle size must be 7 to  25";

TEST(ParseGridSize, ReadsWhatTheBoxCanHold) {
    const auto size = [](int rows, int cols) { return WantedSize{false, rows, cols}; };
    EXPECT_EQ(ParseGridSize("9"), size(9, 9));
    EXPECT_EQ(ParseGridSize(" 9x12 "), size(9, 12));
    EXPECT_EQ(ParseGridSize("25X7"), size(25, 7));
    EXPECT_EQ(ParseGridSize("9 x 12"), size(9, 12));
    EXPECT_EQ(ParseGridSize("9x12x3"), size(9, 12));
    EXPECT_EQ(ParseGridSize("8.5x9.5"), size(8, 10));
    EXPECT_EQ(ParseGridSize("x5"), size(0, 5));
    EXPECT_EQ(ParseGridSize("5x"), size(5, 0));
    EXPECT_EQ(ParseGridSize("-9"), size(-9, -9));
    EXPECT_EQ(ParseGridSize("nine"), size(0, 0));
    EXPECT_EQ(ParseGridSize("1e99"), size(2147483647, 2147483647));
    EXPECT_TRUE(ParseGridSize("").random);
    EXPECT_TRUE(ParseGridSize(" \t ").random);
}

/// A game with a puzzle on the board and a size in the box.
struct NewGame : TestGame {
    explicit NewGame(const std::string& size) : TestGame({kSmallPuzzle, kSmallPuzzle}) {
        Load(2);
        window.texts[Control::GridSize] = size;
        window.statusTexts.clear();
    }

    void ExpectFailure() { prompts.Expect("Could not create new puzzle", "vbinformation+vbok", 1); }

    /// The board is the player's and shows puzzle 2 of the collection.
    void ExpectOldPuzzle() const {
        EXPECT_EQ(CollectionPath, folder.Path("collection.tdw"));
        EXPECT_EQ(PuzzleNumber, 2);
        EXPECT_EQ(Rows, 7);
        EXPECT_EQ(IslandGrid(1, 3), 4);
        ExpectIdle();
    }

    void ExpectIdle() const {
        EXPECT_FALSE(JobRuns(*this));
        EXPECT_TRUE(pictures.enabled);
        EXPECT_TRUE(pictures.visible);
        EXPECT_EQ(window.pointer, Pointer::Default);
    }
};

TEST(NewPuzzle, BecomesTheCurrentPuzzle) {
    NewGame game("9x12");
    mnunewpuzx_Click(game);
    EXPECT_EQ(game.CollectionPath, "temp.txt");
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.PuzzleCount, 1);
    EXPECT_EQ(game.Rows, 9);
    EXPECT_EQ(game.Cols, 12);
    const std::string bytes = game.folder.Read("temp.txt");
    EXPECT_EQ(FaultOfRecord(bytes.substr(0, bytes.size() - 2), 9, 12), "") << bytes;
    EXPECT_EQ(game.window.statusTexts, (std::vector<std::string>{" Creating 9x12 puzzle ...", "Puzzle created"}));
    game.ExpectIdle();

    game.window.texts[Control::GridSize] = "7";
    cmdnew1_Click(game);
    EXPECT_EQ(game.Rows, 7);
    EXPECT_EQ(game.PuzzleCount, 1) << "the file holds the last puzzle alone";
}

TEST(NewPuzzle, AnEmptyBoxGivesRandomSides) {
    NewGame game("7");
    GridSize_MouseDown(game, MouseButton::Left);
    EXPECT_EQ(game.window.texts[Control::GridSize], "7");
    GridSize_MouseDown(game, MouseButton::Right);
    EXPECT_EQ(game.window.texts[Control::GridSize], "");
    cmdnew1_Click(game);
    EXPECT_EQ(game.window.texts[Control::GridSize], std::to_string(game.Rows) + "x" + std::to_string(game.Cols));
}

TEST(NewPuzzle, SizesOutOfRangeAreRefused) {
    for (const char* size : {"6", "26", "30x8", "8x30", "x9", "9x", "0", "-9", "big"}) {
        NewGame game(size);
        game.prompts.Expect(kBadSize, "vbcritical+vbok", 1);
        cmdnew1_Click(game);
        game.ExpectOldPuzzle();
        EXPECT_TRUE(game.window.statusTexts.empty());
    }
}

TEST(NewPuzzle, CancelBringsTheOldPuzzleBack) {
    int moment = 1;
    for (; moment < 1000; ++moment) {
        NewGame game("10");
        game.clock.step = 100;
        game.events.happen = [&] {
            if (game.events.count == moment && JobRuns(game)) {
                game.ExpectFailure();
                cmdcancel_Click(game);
                EXPECT_EQ(game.window.texts[Control::pb], " Canceling...");
            }
        };
        cmdnew1_Click(game);
        if (game.window.texts[Control::pb] == "Puzzle created") break;
        EXPECT_EQ(game.window.texts[Control::pb], "Could not create new puzzle");
        game.ExpectOldPuzzle();
    }
    EXPECT_GT(moment, 10);
    EXPECT_LT(moment, 1000);
}

TEST(NewPuzzle, ARefusedFileBringsTheOldPuzzleBack) {
    NewGame game("10");
    std::filesystem::create_directory("temp.txt");
    game.prompts.Expect("Could not create new puzzle\r\ntemp.txt: Is a directory", "vbinformation+vbok", 1);
    cmdnew1_Click(game);
    game.ExpectOldPuzzle();
}

TEST(NewPuzzle, AnOldPuzzleThatIsGoneLeavesAnEmptyBoard) {
    NewGame game("10");
    std::filesystem::remove(game.CollectionPath);
    std::filesystem::create_directory("temp.txt");
    game.prompts.Expect("puzzle 2 not found", "vbinformation+vbok", 1);
    game.prompts.Expect("Could not create new puzzle\r\ntemp.txt: Is a directory", "vbinformation+vbok", 1);
    cmdnew1_Click(game);
    game.ExpectIdle();
    EXPECT_EQ(game.IslandGrid(1, 3), -1);
    EXPECT_EQ(game.LinkCount(), 0);
}

TEST(NewPuzzle, APuzzleLoadedMeanwhileStays) {
    NewGame game("25");
    game.clock.step = 100;
    game.events.happen = [&] {
        if (game.events.count == 20) game.Load(1);
    };
    cmdnew1_Click(game);
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.IslandGrid(1, 3), 4);
    EXPECT_EQ(game.window.texts[Control::pb], "");
    game.ExpectIdle();
}

TEST(NewPuzzle, DoesNotNestInAJob) {
    NewGame game("8");
    game.clock.step = 100;
    game.events.happen = [&] {
        if (game.events.count != 1) return;
        game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
        cmdnew1_Click(game);
    };
    cmdnew1_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "Puzzle created");
}

TEST(NewPuzzle, AClosedWindowAsksNothingMore) {
    NewGame game("25");
    game.clock.step = 100;
    game.events.happen = [&] { game.ending = true; };
    cmdnew1_Click(game);
    EXPECT_FALSE(std::filesystem::exists("temp.txt"));
}

TEST(Cancel, WithoutAJobEmptiesTheStatusLine) {
    NewGame game("8");
    game.window.texts[Control::pb] = "Solved";
    cmdcancel_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "");
    EXPECT_EQ(game.CancelFlag, NoValue);
}

}  // namespace
}  // namespace tidewalk::test
