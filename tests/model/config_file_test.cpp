// SPDX-License-Identifier: MIT
#include "model/config_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

const std::string kDefaultFile = "xp.col\r\n 1  0  250  12  1315860  16777215  128  12632256  1  0 \r\npuzzles.txt\r\n";

void ExpectRecovery(TestGame& game) {
    game.prompts.Expect(
        "Configuration file:\r\n" + game.AppFolder + "tide.cfg\r\ncould not be accessed, new file will be created",
        "vbok", 1);
}

TEST(ConfigFile, TheFirstStartSaysSoAndWritesTheDefaults) {
    TestGame game;
    game.CollectionPath = "kept";
    ExpectRecovery(game);
    ReadcfgFile(game);
    EXPECT_EQ(game.folder.Read("tide.cfg"), kDefaultFile);
    EXPECT_EQ(game.CollectionPath, "kept");
    EXPECT_EQ(game.ChainColour, Rgb(128, 0, 0));
    EXPECT_EQ(game.GridColour, Rgb(192, 192, 192));
    ReadcfgFile(game);
    EXPECT_EQ(game.CollectionPath, "puzzles.txt");
}

TEST(ConfigFile, EverythingThatIsSavedComesBack) {
    TestGame game;
    const std::string file = "dusk.col\r\n 7  1  320 -5  1  2  3  4  0  657930 \r\n/a folder/b,c.tdw\r\n";
    game.folder.Write("tide.cfg", file);
    ReadcfgFile(game);
    EXPECT_EQ(game.PuzzleNumber, 7);
    EXPECT_EQ(game.NodeShape, 1);
    EXPECT_EQ(game.CellSize, 320);
    EXPECT_EQ(game.NodeColour, 1U);
    EXPECT_EQ(game.GridColour, 4U);
    EXPECT_EQ(game.ShowLines, 0);
    EXPECT_EQ(game.SchemeColours[13], 657930U);
    EXPECT_EQ(game.CollectionPath, "/a folder/b,c.tdw");
    game.folder.Write("tide.cfg", "");
    mnuoptsave_Click(game);
    EXPECT_EQ(game.folder.Read("tide.cfg"), file);
    EXPECT_EQ(game.window.texts[Control::pb], "Options saved");
}

TEST(ConfigFile, CommasSeparateTooAndAShortEndOfLineIsEnough) {
    TestGame game;
    game.folder.Write("tide.cfg", " sand.col ,rest\n2,1,300,12,1,2,3,4,1,0,99\nlast");
    ReadcfgFile(game);
    EXPECT_EQ(game.ColourSchemeName, "sand.col");
    EXPECT_EQ(game.PuzzleNumber, 2);
    EXPECT_EQ(game.CollectionPath, "last");
}

TEST(ConfigFile, NumbersOutOfRangeAreBroughtIntoIt) {
    TestGame game;
    game.folder.Write("tide.cfg", "xp.col\n0 5 0 12 -2147483633 99999999999 -1 16777216 7 -3\nx\n");
    ReadcfgFile(game);
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.NodeShape, 0);
    EXPECT_EQ(game.CellSize, 200);
    EXPECT_EQ(game.NodeColour, kDefaultNodeColour);
    EXPECT_EQ(game.GivenColour, kDefaultGivenColour);
    EXPECT_EQ(game.ChainColour, kDefaultChainColour);
    EXPECT_EQ(game.GridColour, kDefaultGridColour);
    EXPECT_EQ(game.ShowLines, 1);
    EXPECT_EQ(game.SchemeColours[13], 0U);
}

TEST(ConfigFile, CutOffAnywhereBeforeTheCollectionItTakesAllDefaults) {
    const std::string whole = "dusk.col\r\n 7  1  320  12  1  2  3  4  0  65 \r\n";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        TestGame game;
        game.folder.Write("tide.cfg", whole.substr(0, length));
        ExpectRecovery(game);
        ReadcfgFile(game);
        EXPECT_EQ(game.ColourSchemeName, "xp.col");
        EXPECT_EQ(game.PuzzleNumber, 1);
        EXPECT_EQ(game.folder.Read("tide.cfg"), kDefaultFile);
    }
}

TEST(ConfigFile, RandomBytesLeaveEveryOptionInItsRange) {
    std::mt19937 random(5);
    const std::string alphabet("0123456789 -+.,eE\r\n\0x\xFF", 22);
    for (int run = 0; run < 300; ++run) {
        TestGame game;
        std::string bytes = "xp.col\n";
        for (unsigned i = 0; i < random() % 200; ++i)
            bytes += alphabet[random() % alphabet.size()];
        game.folder.Write("tide.cfg", bytes + "\nend\n");
        game.prompts.AnswerAll(1);
        ReadcfgFile(game);
        EXPECT_GE(game.PuzzleNumber, 1);
        EXPECT_TRUE(game.CellSize >= 200 && game.CellSize <= 700);
        EXPECT_LE(game.NodeColour, kWhite);
        EXPECT_LE(game.SchemeColours[13], kWhite);
    }
}

TEST(ConfigFile, WhereNothingCanBeWrittenTheMessageIsAll) {
    TestGame game;
    std::filesystem::create_directory("tide.cfg");
    game.prompts.Expect(
        "Configuration file:\r\n" + game.AppFolder + "tide.cfg\r\ncould not be accessed, options not saved", "vbok", 1);
    mnuoptsave_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "");
    ExpectRecovery(game);
    ReadcfgFile(game);
    EXPECT_EQ(game.ColourSchemeName, "xp.col");
}

}  // namespace
}  // namespace tidewalk::test
