// SPDX-License-Identifier: MIT
#include "model/read_grid_file.h"

#include <gtest/gtest.h>

#include "model/collection_edit.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

std::string Lines(int count, const std::string& line, const std::string& end = "\r\n") {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + end;
    return text;
}

TEST(ReadGridFile, APlainGridBecomesThePuzzleAndTheCollectionStaysWhatItWas) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    game.Load(2);
    game.BridgeState.Set(1, 2, 1);
    const std::string path = game.folder.Write("grid.txt", "2.9\n1\n x34567\n\nnot read\n");
    EXPECT_EQ(ReadGridFile(game, path, 1), 0);
    EXPECT_EQ(PlainGrid(game), (std::vector<std::string>{"2.9", "1..", "..3"}));
    EXPECT_EQ(game.IslandGrid(1, 2), 0);
    EXPECT_EQ(game.GivenGrid(4, 1), -1);
    EXPECT_EQ(game.NumberTotal, 15);
    EXPECT_EQ(game.LinkCount(), 0);
    EXPECT_EQ(game.BridgeState(1, 2), 0);
    EXPECT_EQ(game.CellSize, 700);
    EXPECT_EQ(game.PuzzleNumber, 2);
    EXPECT_EQ(game.window.texts[Control::GridSize], "3x3");
    EXPECT_EQ(game.window.texts[Control::PuzNumber], " of 2");
    EXPECT_EQ(game.window.texts[Control::Puzfile], "grid.txt");
    EXPECT_EQ(game.window.texts[Control::pb], "Edited puzzle read");
}

TEST(ReadGridFile, OneOfSeveralMarkedGrids) {
    TestGame game;
    const std::string path = game.folder.Write("grids.grd", "#0103\r\n1.1\r\n\r\n#0201\r\n4\r\n5\r\n");
    EXPECT_EQ(ReadGridFile(game, path, 2), 0);
    EXPECT_EQ(PlainGrid(game), (std::vector<std::string>{"4", "5"}));
    game.prompts.Expect("Grid 3 not found", "vbcritical+vbok", 1);
    EXPECT_EQ(ReadGridFile(game, path, 3), 1);
    EXPECT_EQ(game.Rows, 2);
}

TEST(ReadGridFile, WhatIsNoGridLeavesThePuzzleAsItWas) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    const auto before = game.GivenGrid;
    const int links = game.LinkCount();
    for (const std::string& bytes : {Lines(26, "1.1"), Lines(3, std::string(26, '1')), std::string("#2601\r\n1\r\n"),
                                     std::string("#00"), std::string("#xxyy\n"), std::string("#0302\n11\n22\n")}) {
        const std::string path = game.folder.Write("grid.txt", bytes);
        game.prompts.Expect("Error reading grid from:\r\n" + path, "vbcritical+vbok", 1);
        EXPECT_EQ(ReadGridFile(game, path, 1), 1);
    }
    game.prompts.Expect("Grid 1 not found", "vbcritical+vbok", 1);
    EXPECT_EQ(ReadGridFile(game, game.folder.Write("empty.txt", ""), 1), 1);
    game.prompts.Expect("Error reading grid from:\r\nmissing", "vbcritical+vbok", 1);
    EXPECT_EQ(ReadGridFile(game, "missing", 1), 1);
    EXPECT_EQ(game.Rows, 7);
    EXPECT_EQ(game.GivenGrid, before);
    EXPECT_EQ(game.LinkCount(), links);
}

TEST(PastePuzzle, TakesLinesOfBothEndsAndPassesOverEmptyOnesAtTheEnd) {
    for (const std::string end : {"\n", "\r\n"}) {
        TestGame game;
        game.clipboard.text = Lines(25, "1.3.", end) + end + end;
        mnupastepuzzle_Click(game);
        EXPECT_EQ(game.Rows, 25);
        EXPECT_EQ(game.Cols, 4);
        EXPECT_EQ(game.window.texts[Control::pb], "Puzzle imported");
        EXPECT_EQ(game.folder.Read("tempin.txt"), Lines(25, "1.3."));
    }
}

TEST(PastePuzzle, RefusesWhatFitsNoBoard) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    for (const std::string& text : {std::string(), std::string("  "), std::string("\r\n\r\n"), Lines(26, "1"),
                                    std::string(26, '1') + "\n1\n", std::string("\n1\n")}) {
        game.clipboard.text = text;
        mnupastepuzzle_Click(game);
        EXPECT_EQ(game.window.texts[Control::pb], "Error importing puzzle");
        EXPECT_EQ(game.Rows, 7);
    }
    game.jobRunning = true;
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    mnupastepuzzle_Click(game);
}

TEST(ImportPuzzle, ReadsWhatExportWrote) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    const auto given = PlainGrid(game);
    const std::string path = game.folder.Path("out.txt");
    game.filePicker.Answer(path);
    game.prompts.Expect("Puzzle exported to file:\r\n" + path, "vbinformation+vbok", 1);
    mnuexport_Click(game);
    game.filePicker.Answer(path);
    mnuimport_Click(game);
    EXPECT_EQ(PlainGrid(game), given);
    EXPECT_EQ(game.LinkCount(), 0);
    EXPECT_EQ(game.window.texts[Control::pb], "File out.txt imported");
    EXPECT_EQ(game.filePicker.requests.back().title, "Select a grid file");
}

}  // namespace
}  // namespace tidewalk::test
