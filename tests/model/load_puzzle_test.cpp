// SPDX-License-Identifier: MIT
// Loading puzzles, moving through a collection, opening another one.
#include "model/load_puzzle.h"

#include "board/after_move.h"
#include "board/place_bridge.h"
#include "game/recent_files.h"
#include "model/navigation.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

const Lines kRows{"1.2", "...", "3.4", "..."};

/// A game whose loads may fail.
struct LoadGame : TestGame {
    using TestGame::TestGame;

    void ExpectNone(int number) { world.Expect("puzzle " + std::to_string(number) + " not found", kInformation); }
    void ExpectNoLoad(const std::string& path, int number) {
        ExpectNone(number);
        EXPECT_FALSE(Run(LoadPuzzle, path, number)) << path;
    }
    int After(int index, MouseButton button) {
        Run(arrows_Click, index, button);
        return collection.PuzzleNumber;
    }
};

TEST(LoadPuzzle, ShowsThePuzzleAndItsLabels) {
    TestGame game({kSmallPuzzle, Record(kRows)});
    game.world.container = {2603, 9000};
    game.Load(2);
    EXPECT_EQ(game.board.puzzle, PuzzleFrom(kRows));
    const auto& texts = game.world.texts;
    EXPECT_EQ(texts.at(WindowText::PuzzleNumber) + texts.at(WindowText::PuzzleCount), "2 of 2");
    EXPECT_EQ(texts.at(WindowText::BoardSize) + texts.at(WindowText::CollectionName), "4x3collection.tdw");
    EXPECT_EQ(game.world.toolTips[WindowText::CollectionName], game.PathOfCollection());
    EXPECT_EQ(game.board.layout.CellSize, 434) << "433.8, a sixth of the width";
    EXPECT_EQ(game.board.FittedCellSize, 434);
}

TEST(LoadPuzzle, LeavesNothingOfThePuzzleBefore) {
    TestGame game({kSmallPuzzle, Record({"11", "11"})});
    game.Load(1);
    Board& board = game.board;
    board.BridgeState.Set(3, 7, 2);
    board.history.Push({{3, 7, 0}, 1});
    board.AnchorRow = board.HoverRow = board.FocusRow = 1;
    board.AnchorCol = board.HoverCol = board.FocusCol = 3;
    board.Line1.visible = true;
    board.Shape1 = {true, {1, 3}};
    board.OpenNeighbours[3].Append(7);
    game.world.markerTime = true;
    game.job.Cancel();
    game.Load(2);
    EXPECT_TRUE(board.BridgeState.InBothOrders().empty() && board.history.UndoList().empty());
    EXPECT_EQ(board.history.Revision(), 3U) << "the window has to show the list anew";
    EXPECT_EQ(board.AnchorRow + board.AnchorCol + board.HoverRow + board.HoverCol + board.FocusRow, 0);
    EXPECT_FALSE(board.Line1.visible || board.Shape1.visible || game.job.CancelFlag());
    EXPECT_TRUE(board.OpenNeighbours[3].Empty());
    EXPECT_EQ(board.loadCount, 2);
}

TEST(LoadPuzzle, WhatCannotBeReadLeavesThePuzzleAlone) {
    LoadGame game({kSmallPuzzle});
    game.Load(1);
    for (const std::string& path : {game.folder.Path("missing"), game.folder.Path(""), game.folder.Write("empty", ""),
                                    game.folder.Write("binary", std::string(" 7, 7, 0;\0;1", 12))}) {
        game.ExpectNoLoad(path, 1);
        CloseFiles(game);
    }
    game.ExpectNoLoad(game.PathOfCollection(), 0);
    CloseFiles(game);
    game.ExpectNoLoad(game.PathOfCollection(), 2);
    EXPECT_EQ(game.board.puzzle, *ParsePuzzleRecord(kSmallPuzzle));
    EXPECT_EQ(game.collection.PuzzleNumber, 1);
    EXPECT_EQ(game.world.Seen(), "box, box, box, box, box, box");
}

TEST(LoadPuzzle, AMalformedRecordLeavesWhatCouldBeReadOfIt) {
    LoadGame game({kSmallPuzzle, " 3, 3, 0;D;12.,3.4", " 3;D;1"});
    game.Load(1);
    const auto loadPart = [&] {
        CloseFiles(game);
        game.ExpectNoLoad(game.PathOfCollection(), 2);
        EXPECT_EQ(game.Numbers(), (Lines{"12.", "3.4", "..."}));
    };
    const auto showAgain = [&](int number) {
        Collection of = game.collection;
        of.CollectionPath = game.PathOfCollection();
        of.PuzzleNumber = number;
        game.Run(ShowAgain, ShownPuzzle{{}, of});
    };
    loadPart();
    game.ExpectNone(9);
    showAgain(9);
    EXPECT_EQ(game.board.puzzle, Puzzle({3, 3}));
    EXPECT_FALSE(game.collection.leftOpen);
    loadPart();
    CloseFiles(game);
    game.ExpectNoLoad(game.PathOfCollection(), 3);
    EXPECT_EQ(game.board.puzzle, Puzzle({3, 3}));
    EXPECT_EQ(game.world.Text(WindowText::BoardSize), "7x7");
    showAgain(1);
    EXPECT_GT(game.board.puzzle.IslandCount(), 0);
}

TEST(LoadPuzzle, AFailureBlocksTheNextLoadUntilTheFilesAreClosed) {
    LoadGame game({kSmallPuzzle, "broken", kSmallPuzzle});
    game.Load(1);
    game.ExpectNone(2);
    game.ExpectNone(1);
    game.Run(arrows_Click, 2, MouseButton::Left);
    game.ExpectNone(3);
    game.ExpectNone(1);
    game.TypeNumber("3");
    EXPECT_EQ(game.After(2, MouseButton::Right), 3) << "an arrow counts the lines, which closes the file";
    game.ExpectNoLoad(game.folder.Path("missing"), 1);
    game.Load(1);
    EXPECT_EQ(game.collection.PuzzleNumber, 1) << "what cannot be opened is not open";
}

TEST(Arrows, StepAndWrapWithBothButtons) {
    LoadGame game({kSmallPuzzle, kSmallPuzzle, kSmallPuzzle});
    EXPECT_EQ(game.After(2, MouseButton::Left), 0) << "there is nowhere to go yet";
    game.Load(1);
    for (const int number : {3, 2, 1})
        EXPECT_EQ(game.After(0, MouseButton::Left), number);
    for (const int number : {2, 3, 1})
        EXPECT_EQ(game.After(2, MouseButton::Left), number);
    EXPECT_EQ(game.After(2, MouseButton::Right), 3);
    EXPECT_EQ(game.After(0, MouseButton::Right), 1);
    game.world.Seen();
    game.After(0, MouseButton::Middle);
    game.After(3, MouseButton::Left);
    EXPECT_EQ(game.world.Seen(), "");
    std::map<int, int> drawn;
    for (int i = 0; i < 60; ++i)
        ++drawn[game.After(1, MouseButton::Left)];
    EXPECT_TRUE(drawn[1] > 5 && drawn[2] > 5 && drawn[3] > 5);
    game.Load(1);
    game.folder.Write("collection.tdw", kSmallPuzzle);
    EXPECT_EQ(game.After(2, MouseButton::Left), 1) << "the lines are counted again";
    EXPECT_EQ(game.world.Seen(), "number: 1, status: ");
    game.After(2, MouseButton::Left);
    EXPECT_EQ(game.world.Seen(), "") << "the only puzzle is there already";
}

TEST(Arrows, SayThatPlayIsBack) {
    TestGame game({kSmallPuzzle, Record({"1.1"})});
    game.Load(1);
    LayBridge(game.board, PlaceMode::Cycle, 3, 7);
    game.Run(AfterMove);
    for (const char* said : {"", "Your bridges are back"}) {
        game.Run(arrows_Click, 2, MouseButton::Left);
        EXPECT_EQ(game.world.Status(), said);
    }
    EXPECT_EQ(game.board.BridgeState(3, 7), 1);
}

TEST(PuzNumNow, OnlyEnterAndNumbersInRangeLoad) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    game.Load(2);
    for (const char* text : {"0", "3", "-1", "x", ""})
        game.TypeNumber(text);
    game.world.texts[WindowText::PuzzleNumber] = "1.4";
    game.Run(PuzNumNow_KeyPress, '2');
    EXPECT_EQ(game.world.Seen(), "");
    game.Run(PuzNumNow_KeyPress, kEnterKey);
    game.TypeNumber("2");
    EXPECT_EQ(game.world.Seen(), "number: 1, status: , number: 2, status: ");
}

TEST(OpenFile, AFailedOpenDoesNotBringThePuzzleBack) {
    LoadGame game({kSmallPuzzle, kSmallPuzzle});
    game.Load(2);
    const std::string good = game.folder.Write("good.tdw", Joined({Record({"1-1"}), Record({"2=2"})}));
    for (const std::string& path : {std::string(), game.folder.Write("bad.tdw", "3,3,0;D;1,\r\n"), good}) {
        game.world.ExpectPick("Tidewalk|*.tdw;*.txt;*.dat|Tidewalk Files|open", path);
        if (path.ends_with("bad.tdw")) game.ExpectNone(1);
        path == good ? game.Run(mnuloadpuz_Click) : game.Run(cmdload_Click);
        EXPECT_EQ(game.collection.CollectionPath, path == good ? good : game.PathOfCollection());
        CloseFiles(game);
    }
    EXPECT_EQ(game.world.Seen(),
              "pick, pick, busy, box, status: , not busy, pick, busy, number: 1, status: , not busy");
    EXPECT_EQ(game.collection.PuzzleCount, 2);
    EXPECT_EQ(game.Numbers(), Lines{"1.1"});
}

TEST(OpenFile, OfTheOlderLayoutOffersToConvertIt) {
    LoadGame game({kSmallPuzzle});
    game.Load(1);
    const std::string bytes = "#0\nD\n 1, 3, 0\n1.1\n#\nlast";
    const std::string old = game.folder.Write("old.dat", bytes);
    const std::string to = game.folder.Path("old-newformat.txt");
    const std::string question =
        "This collection is of the older layout:\r\n" + old + "\r\n\r\nConvert it to this file and open that?\r\n" + to;
    game.world.Expect(question, "vbYesNo+vbquestion", kNo);
    EXPECT_FALSE(game.Run(OpenCollection, old, 1));
    game.folder.Write("old-newformat.txt", "mine");
    for (const int answer : {kNo, kYes}) {
        game.world.Expect(question, "vbYesNo+vbquestion", kYes);
        game.world.Expect("OverWrite file: " + to + " ?", "system yesno", answer);
        EXPECT_EQ(game.Run(OpenCollection, old, 1), answer == kYes);
        EXPECT_EQ(game.collection.CollectionPath, answer == kYes ? to : game.PathOfCollection());
    }
    EXPECT_EQ(game.Numbers(), Lines{"1.1"});
    game.world.Expect(
        "This collection is of the older layout:\r\nold\r\n\r\nGive it a name with an ending, so that a "
        "converted copy can be named after it.",
        kInformation);
    game.folder.Write("old", bytes);
    EXPECT_FALSE(game.Run(OpenCollection, "old", 1));
}

TEST(RecentFiles, AreTenTheNewestFirstWithoutTheWorkFile) {
    TestGame game({kSmallPuzzle});
    Lines paths;
    for (int i = 1; i <= 12; ++i) {
        paths.insert(paths.begin(),
                     game.folder.Write("f" + std::to_string(i) + " \x01\xFF%.tdw", kSmallPuzzle + std::string("\n")));
        game.Run(OpenChosen, paths.front());
    }
    game.Run(OpenChosen, paths.back());
    game.Run(OpenChosen, game.folder.Write("temp.txt", kSmallPuzzle));
    Lines wanted(paths.begin(), paths.begin() + 9);
    wanted.insert(wanted.begin(), paths.back());
    EXPECT_EQ(RecentFiles(game), wanted);
    game.choices.Set("RecentFiles", "x /a%2 /b%20c  /d%00 /e%zz");
    EXPECT_EQ(RecentFiles(game), Lines{"/b c"}) << "somebody has written into the file";
    EXPECT_EQ(ShortNames({"/a/x", "/b/x", "/b/y", "/c/a/x", "/x"}), Lines({"/a/x", "/b/x", "y", "a/x", "/x"}));
}

}  // namespace
}  // namespace tidewalk::test
