// SPDX-License-Identifier: MIT
#include "program/first_collection.h"

#include <gtest/gtest.h>

#include "model/job.h"
#include "program/form_load.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(FirstCollection, AStartWithoutPuzzlesMakesOne) {
    TestGame game;
    std::filesystem::copy_file(TIDEWALK_DATA_DIR "/all.col", "all.col");
    game.folder.Write("TempPuzzles.tdw", "an older file\r\n");
    const std::string path = game.folder.Path("TempPuzzles.tdw");
    game.prompts.Expect("Configuration file:\r\n" + game.folder.Path("tide.cfg") +
                            "\r\ncould not be accessed, new file will be created",
                        "vbok", 1);
    game.prompts.Expect("puzzle 1 not found", "vbinformation+vbok", 1);
    game.prompts.ExpectSystemBox("A new file will be created:\r\n" + path, SystemButtons::Ok, 1);
    StartRequest request;
    request.appFolder = game.folder.Path("");
    EXPECT_EQ(Form_Load(game, request), std::nullopt);
    const std::string bytes = game.folder.Read("TempPuzzles.tdw");
    EXPECT_EQ(FaultOfRecord(bytes.substr(0, bytes.size() - 2), 8, 8), "") << bytes;
    EXPECT_EQ(game.CollectionPath, path);
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.PuzzleCount, 1);
    EXPECT_FALSE(JobRuns(game));
    EXPECT_EQ(game.window.pointer, Pointer::Default);
}

TEST(FirstCollection, AFolderThatTakesNoFileLeavesAnEmptyBoard) {
    TestGame game;
    std::filesystem::create_directories("TempPuzzles.tdw/inside");
    const std::string path = game.folder.Path("TempPuzzles.tdw");
    game.prompts.ExpectSystemBox("A new file will be created:\r\n" + path, SystemButtons::Ok, 1);
    game.prompts.Expect(path + ": Is a directory", "vbcritical+vbok", 1);
    MakeFirstCollection(game);
    EXPECT_EQ(game.IslandGrid(1, 1), -1);
    EXPECT_EQ(game.LinkCount(), 0);
    EXPECT_FALSE(JobRuns(game));
}

}  // namespace
}  // namespace tidewalk::test
