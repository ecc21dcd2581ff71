// SPDX-License-Identifier: MIT
#include "model/load_puzzle.h"

#include <gtest/gtest.h>

#include <random>

#include "model/navigation.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kInformation = "vbinformation+vbok";

std::vector<std::string> LinkTexts(const Game& game) {
    std::vector<std::string> texts;
    for (int i = 1; i <= game.LinkCount(); ++i)
        texts.push_back(Text(game.LinkList[i]));
    return texts;
}

TEST(LoadPuzzle, ReadsNumbersBridgesAndLabels) {
    TestGame game({kSmallPuzzle, " 7,9 , 0;;1-2......,|.I......,1.4====..4,I........,2........,.........,.........,"});
    ASSERT_EQ(game.Load(2), 0);
    EXPECT_EQ(game.Rows, 7);
    EXPECT_EQ(game.Cols, 9);
    EXPECT_EQ(game.CellId(2, 1), 10);
    EXPECT_EQ(game.CellId(8, 1), 0) << "off the board";
    EXPECT_EQ(game.IslandGrid(8, 1), -1);
    EXPECT_EQ(game.IslandGrid(1, 10), -1);
    EXPECT_EQ(game.IslandGrid(26, 26), 0);
    EXPECT_EQ(game.IslandGrid(1, 2), 0) << "a bridge is water";
    EXPECT_EQ(game.NumberTotal, 10) << "a character beyond the last column does not count";
    // Row by row, then the columns' single bridges, then their double ones. A run that ends on water is recorded.
    EXPECT_EQ(LinkTexts(game), (std::vector<std::string>{"0010031", "0210260", "0010191", "0190370", "0030210"}));
    EXPECT_EQ(game.window.texts[Control::GridSize], "7x9");
    EXPECT_EQ(game.window.texts[Control::PuzNumNow], "2");
    EXPECT_EQ(game.window.texts[Control::PuzNumber], " of 2");
    EXPECT_EQ(game.window.texts[Control::Puzfile], "collection.tdw");
    EXPECT_EQ(game.window.toolTips[Control::Puzfile], game.CollectionPath);
    EXPECT_EQ(game.CellSize, 700) << "9000 twips over 11 cells, brought down to the largest cell";
}

TEST(LoadPuzzle, ARunToTheEdgeIsNoBridge) {
    TestGame game({Record({"1--", "I..", "I.."})});
    ASSERT_EQ(game.Load(1), 0);
    EXPECT_EQ(game.LinkCount(), 0);
}

TEST(LoadPuzzle, LeavesNothingOfThePuzzleBefore) {
    TestGame game({std::string(kSmallPuzzle), Record({"11", "11"})});
    ASSERT_EQ(game.Load(1), 0);
    game.BridgeState.Set(1, 625, 2);
    game.UndoList.push_front({1, 2, 0});
    game.AnchorRow = game.AnchorCol = game.HoverRow = game.HoverCol = 3;
    game.Line1.visible = game.Shape1.visible = true;
    game.OpenNeighbours(1, 1).Append(3);
    game.CancelFlag = game.BusyFlag = YesValue;
    ASSERT_EQ(game.Load(2), 0);
    EXPECT_EQ(game.BridgeState(625, 1), 0);
    EXPECT_TRUE(game.UndoList.empty());
    EXPECT_EQ(game.AnchorRow + game.HoverCol, 0);
    EXPECT_FALSE(game.Line1.visible || game.Shape1.visible);
    EXPECT_TRUE(game.OpenNeighbours(1, 1).Empty());
    EXPECT_EQ(game.BusyFlag + game.CancelFlag, 0);
    EXPECT_EQ(game.CellId(3, 1), 0);
    EXPECT_EQ(game.LinkCount(), 0);
}

TEST(LoadPuzzle, WhatCannotBeReadLeavesThePuzzleAlone) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const Grid<int> before = game.IslandGrid;
    const std::string empty = game.folder.Write("empty.tdw", "");
    const std::string binary = game.folder.Write("binary.tdw", std::string(" 7, 7, 0;\0;", 11));
    const std::string longLine = game.folder.Write("long.tdw", std::string(10'000'000, '1'));
    for (const std::string& path : {game.folder.Path("missing"), game.folder.Path(""), empty, binary, longLine}) {
        game.prompts.Expect("puzzle 1 not found", kInformation, 1);
        EXPECT_EQ(LoadPuzzle(game, path, 1), 1) << path;
        game.files.CloseAll();
    }
    game.prompts.Expect("puzzle 0 not found", kInformation, 1);
    EXPECT_EQ(game.Load(0), 1);
    EXPECT_EQ(game.IslandGrid, before);
    EXPECT_EQ(game.PuzzleNumber, 1);
}

TEST(LoadPuzzle, MalformedRecordsAreNotFound) {
    const std::vector<std::string> records{"",
                                           " 7, 7;D;..,",
                                           " 7, 7, 0;D",
                                           "26, 7, 0;D;,",
                                           " 7, 0, 0;D;,",
                                           " -7, 7, 0;D;,",
                                           " 7, 7, 0;D;1,1,1,1,1,1",
                                           "1e99, 7, 0;D;,"};
    for (const std::string& record : records) {
        TestGame game({record});
        game.Rows = 3;
        game.prompts.Expect("puzzle 1 not found", kInformation, 1);
        EXPECT_EQ(game.Load(1), 1) << record;
        EXPECT_TRUE(game.Rows == 3 || game.Rows == 7) << record;
    }
    TestGame game({" 7 ,+7.5, x;;1,1,1,1,1,1,1"});
    EXPECT_EQ(game.Load(1), 0) << "blanks, signs, fractions and short rows are fine";
    EXPECT_EQ(game.Cols, 8) << "halves go to even";
}

TEST(LoadPuzzle, AFailureBlocksTheNextLoadUntilTheFilesAreClosed) {
    TestGame game({kSmallPuzzle, "broken", kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    game.prompts.Expect("puzzle 2 not found", kInformation, 1);
    game.prompts.Expect("puzzle 1 not found", kInformation, 1);
    arrows_Click(game, 2, MouseButton::Left);
    EXPECT_EQ(game.PuzzleNumber, 1);
    arrows_Click(game, 2, MouseButton::Right);
    EXPECT_EQ(game.PuzzleNumber, 3) << "an arrow counts the lines, which closes the files";
}

TEST(CountLines, CountsALastLineWithoutAnEnd) {
    TestGame game;
    EXPECT_EQ(CountLines(game, game.folder.Write("a", "1\r\n2\n\n4")), 4);
    EXPECT_EQ(CountLines(game, game.folder.Write("a", "1\n")), 1);
    EXPECT_EQ(CountLines(game, game.folder.Path("missing")), 0);
}

TEST(Arrows, StepAndWrapWithBothButtons) {
    TestGame game({kSmallPuzzle, kSmallPuzzle, kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const auto after = [&](int index, MouseButton button) {
        arrows_Click(game, index, button);
        return game.PuzzleNumber;
    };
    EXPECT_EQ(after(0, MouseButton::Left), 3);
    EXPECT_EQ(after(2, MouseButton::Left), 1);
    EXPECT_EQ(after(2, MouseButton::Right), 3);
    EXPECT_EQ(after(0, MouseButton::Right), 1);
    EXPECT_EQ(after(0, MouseButton::Middle), 1);
    std::vector<int> drawn(4);
    for (int i = 0; i < 60; ++i)
        ++drawn[after(1, MouseButton::Left)];
    EXPECT_TRUE(drawn[1] > 5 && drawn[2] > 5 && drawn[3] > 5);
    game.BusyFlag = YesValue;
    game.prompts.Expect("Cancel Autosolve first", kInformation, 1);
    arrows_Click(game, 2, MouseButton::Left);
}

TEST(PuzNumNow, OnlyEnterAndNumbersInRangeLoad) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    for (const char* text : {"0", "3", "-1", "x", ""}) {
        game.window.texts[Control::PuzNumNow] = text;
        PuzNumNow_KeyPress(game, kEnterKey);
        EXPECT_EQ(game.window.texts[Control::PuzNumNow], text);
    }
    game.window.texts[Control::PuzNumNow] = "1.6";
    PuzNumNow_KeyPress(game, '2');
    EXPECT_EQ(game.PuzzleNumber, 1);
    PuzNumNow_KeyPress(game, kEnterKey);
    EXPECT_EQ(game.PuzzleNumber, 2);
}

TEST(OpenFile, AFailedOpenDoesNotBringThePuzzleBack) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    game.filePicker.Answer("");
    mnuloadpuz_Click(game);
    game.filePicker.Answer(game.folder.Write("bad.tdw", "7,7,0;D;1,\r\n"));
    game.prompts.Expect("puzzle 1 not found", kInformation, 1);
    cmdload_Click(game);
    EXPECT_EQ(game.window.pointer, Pointer::Default);
    EXPECT_NE(game.CollectionPath, game.folder.Path("bad.tdw"));
    EXPECT_EQ(game.filePicker.requests.back().title, "Tidewalk");
    EXPECT_EQ(game.filePicker.requests.back().patterns, "*.tdw;*.txt;*.dat");
}

TEST(LoadPuzzle, AFileWithoutLinesDoesNotFillTheMemory) {
    TestGame game;
    const std::string path = game.folder.Write("huge.tdw", "7,7,0");
    std::error_code error;
    std::filesystem::resize_file(path, std::uintmax_t{1} << 36U, error);
    if (error) GTEST_SKIP() << "no room for a sparse file: " << error.message();
    game.prompts.Expect("puzzle 1 not found", kInformation, 1);
    EXPECT_EQ(LoadPuzzle(game, path, 1), 1);
}

TEST(LoadPuzzle, RandomBytesNeverLeaveTheBoard) {
    std::mt19937 random(5);
    const std::string alphabet = "0123456789,;;,,.-=|I \r\n\t\0x\xFF+e";
    for (int round = 0; round < 300; ++round) {
        TestGame game;
        std::string bytes = round % 2 == 0 ? " 7, 7, 0;D;" : "";
        for (int i = 0; i < 200; ++i)
            bytes += alphabet[random() % alphabet.size()];
        const std::string path = game.folder.Write("random.tdw", bytes);
        game.prompts.AnswerAll(1);
        LoadPuzzle(game, path, 1 + round % 3);
        game.board.RedrawBoard(game, round % 2 == 0);
    }
}

}  // namespace
}  // namespace tidewalk::test
