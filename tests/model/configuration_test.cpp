// SPDX-License-Identifier: MIT
#include "model/configuration.h"

#include <filesystem>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

const std::string kDefaultFile = "xp.col\r\n 1  0  250  12  1315860  16777215  128  12632256  1  0 \r\npuzzles.txt\r\n";

struct ConfigurationGame : TestGame {
    void Read(const std::string& bytes) {
        folder.Write("tide.cfg", bytes);
        collection.leftOpen = true;
        Run(ReadcfgFile);
        EXPECT_FALSE(collection.leftOpen);
    }
    void ExpectMessage(const std::string& end) {
        world.Expect("Configuration file:\r\n" + AppFolder + "tide.cfg\r\ncould not be accessed, " + end, "vbok");
    }

    /// The scheme and the collection, and the numbers but for the one that nothing uses.
    std::string Taken() const {
        std::string all = options.ColourSchemeName;
        for (const int number : {collection.PuzzleNumber, options.NodeShape, board.layout.CellSize, options.ShowLines})
            all += " " + std::to_string(number);
        for (const Colour colour : {options.NodeColour, options.GivenColour, options.ChainColour, options.GridColour,
                                    options.SchemeColours[kAdjustedEntry]})
            all += " " + std::to_string(colour);
        return all + " " + collection.CollectionPath;
    }
};

TEST(Configuration, EverythingThatIsSavedComesBack) {
    ConfigurationGame game;
    const std::string file = "dusk.col\r\n 7  1  320 -5  1  2  3  4  0  657930 \r\n/a folder/b,c.tdw\r\n";
    game.Read(file);
    EXPECT_EQ(game.Taken(), "dusk.col 7 1 320 0 1 2 3 4 657930 /a folder/b,c.tdw");
    game.folder.Write("tide.cfg", "");
    game.collection.leftOpen = true;
    game.Run(mnuoptsave_Click);
    EXPECT_EQ(game.folder.Read("tide.cfg"), file);
    EXPECT_EQ(game.world.Seen(), "status: Options saved");
    EXPECT_FALSE(game.collection.leftOpen);
}

TEST(Configuration, IsReadLenientlyAndBroughtIntoItsRanges) {
    ConfigurationGame game;
    game.Read(" sand.col ,rest\n2,1,300\t12,1,2,3,16777215,-1,99,99\nlast");
    EXPECT_EQ(game.Taken(), "sand.col 2 1 300 1 1 2 3 16777215 99 last");
    game.Read("xp.col\n0 5 0 12 -2147483633 99999999999 -1 16777216 7 -3\nx\n");
    EXPECT_EQ(game.Taken(), "xp.col 1 0 200 1 1315860 16777215 592328 706760 0 x");
}

TEST(Configuration, WhatIsNoneTakesAllDefaultsAndSaysSo) {
    const std::string whole = "dusk.col\r\n 7  1  320  12  1  2  3  4  0  65 \r\n";
    Lines none{whole + "path" + std::string(65536, 'x'), "dusk.col\n1 1 1 1 1 1 1 1 x 1\npath",
               "dusk.col\n1 1 1 1 1 1 1 1 . 1\npath"};
    for (const std::size_t length : {0U, 10U, 20U, 40U, 46U})
        none.push_back(whole.substr(0, length));
    for (const std::string& bytes : none) {
        ConfigurationGame game;
        game.collection.CollectionPath = "kept";
        game.ExpectMessage("new file will be created");
        game.Read(bytes);
        EXPECT_EQ(game.Taken(), "xp.col 1 0 250 1 1315860 16777215 128 12632256 0 kept");
        EXPECT_EQ(game.folder.Read("tide.cfg"), kDefaultFile);
    }
}

TEST(Configuration, WhereNothingCanBeWrittenTheMessageIsAll) {
    ConfigurationGame game;
    std::filesystem::create_directory("tide.cfg");
    game.ExpectMessage("options not saved");
    game.Run(mnuoptsave_Click);
    game.ExpectMessage("new file will be created");
    game.Run(ReadcfgFile);
    EXPECT_EQ(game.world.Seen(),
              "box, box, status: Configuration file not created: " + game.AppFolder + "tide.cfg: Is a directory");
}

}  // namespace
}  // namespace tidewalk::test
