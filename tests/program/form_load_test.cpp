// SPDX-License-Identifier: MIT
#include "program/form_load.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "program/exit.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A program folder with the schemes that ship and a collection of `puzzles` puzzles.
void FillFolder(TestGame& game, int puzzles) {
    std::filesystem::copy_file(std::string(TIDEWALK_DATA_DIR) + "/all.col", "all.col");
    std::string records;
    for (int i = 0; i < puzzles; ++i)
        records += std::string(kSmallPuzzle) + "\r\n";
    game.folder.Write("puzzles.txt", records);
}

std::optional<std::string> Start(TestGame& game, const std::string& collection = "") {
    StartRequest request;
    request.appFolder = game.folder.Path("");
    request.collection = collection;
    return Form_Load(game, request);
}

/// A configuration that names puzzle `number` of `collection`.
std::string Configuration(int number, const std::string& collection) {
    return "dusk.col\r\n " + std::to_string(number) + "  1  300  12  1  2  3  4  0  0 \r\n" + collection + "\r\n";
}

TEST(FormLoad, TheFirstStartMakesAConfigurationAndShowsTheFirstPuzzle) {
    TestGame game;
    FillFolder(game, 3);
    game.prompts.Expect("Configuration file:\r\n" + game.folder.Path("tide.cfg") +
                            "\r\ncould not be accessed, new file will be created",
                        "vbok", 1);
    EXPECT_EQ(Start(game), std::nullopt);
    EXPECT_EQ(game.CollectionPath, game.folder.Path("puzzles.txt"));
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.schemeNames.front(), "xp");
    EXPECT_EQ(game.Picture1BackColor, kWhite);
    EXPECT_EQ(game.window.timesColoured, 1);
}

TEST(FormLoad, TheExitButtonBringsTheLastPuzzleBackAndTheFrameDoesNot) {
    TestGame game;
    FillFolder(game, 9);
    game.folder.Write("tide.cfg", Configuration(2, "puzzles.txt"));
    Start(game);
    game.PuzzleNumber = 7;
    game.prompts.Expect("Exit?", "vbYesNo+vbexit", kNo);
    cmdexit_Click(game);
    EXPECT_FALSE(game.window.ended);
    Form_QueryUnload(game);
    EXPECT_TRUE(game.window.ended);
    EXPECT_EQ(game.folder.Read("tide.cfg"), Configuration(2, "puzzles.txt"));

    game.ending = false;
    game.prompts.Expect("Exit?", "vbYesNo+vbexit", kYes);
    cmdexit_Click(game);
    EXPECT_TRUE(game.ending);
    game.ending = false;
    Start(game);
    EXPECT_EQ(game.PuzzleNumber, 7);
    EXPECT_EQ(game.NodeShape, 1);
    EXPECT_EQ(game.ColourSchemeName, "dusk.col");
}

TEST(FormLoad, ADeletedCollectionFallsBackToTheOneInTheFolder) {
    TestGame game;
    FillFolder(game, 3);
    game.folder.Write("tide.cfg", Configuration(3, "/nowhere/gone.tdw"));
    Start(game);
    EXPECT_EQ(game.CollectionPath, game.folder.Path("puzzles.txt"));
    EXPECT_EQ(game.PuzzleNumber, 1);
}

TEST(FormLoad, ACollectionThatWasAskedForComesFirstAndTheLastOneIfItFails) {
    TestGame game;
    FillFolder(game, 3);
    game.folder.Write("tide.cfg", Configuration(3, "puzzles.txt"));
    Start(game, game.folder.Write("other.tdw", std::string(kSmallPuzzle) + "\n"));
    EXPECT_EQ(game.CollectionPath, game.folder.Path("other.tdw"));
    EXPECT_EQ(game.PuzzleNumber, 1);
    game.prompts.Expect("puzzle 1 not found", "vbinformation+vbok", kOk);
    Start(game, game.folder.Path("missing.tdw"));
    EXPECT_EQ(game.CollectionPath, "puzzles.txt");
    EXPECT_EQ(game.PuzzleNumber, 3);
}

TEST(FormLoad, MessagesBeforeTheFirstSchemeWearTheDesktopsColours) {
    TestGame game;
    FillFolder(game, 1);
    game.folder.Write("all.col", "xp.col\r\n");
    game.folder.Write("tide.cfg", "xp.col\r\n 1  0  250  12  1  2  3  4  1  0 \r\npuzzles.txt\r\n");
    Start(game);
    EXPECT_EQ(game.Picture1BackColor, game.window.desktop[DesktopColour::ListBackground]);
    EXPECT_EQ(game.SchemeColours[4], game.window.desktop[DesktopColour::ButtonFace]);
}

TEST(FormLoad, WithoutSchemesTheProgramDoesNotStart) {
    TestGame game;
    const auto fatal = Start(game);
    ASSERT_TRUE(fatal.has_value());
    EXPECT_NE(fatal->find("all.col"), std::string::npos);
    EXPECT_EQ(game.Rows, 0);
}

}  // namespace
}  // namespace tidewalk::test
