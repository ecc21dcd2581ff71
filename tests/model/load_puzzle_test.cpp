// SPDX-License-Identifier: MIT
// How puzzles come onto the board: loaded and stepped through, from another collection, from files of grids, from the
// clipboard and from the number editor.
#include <filesystem>

#include "board/after_move.h"
#include "board/board_commands.h"
#include "board/copy_and_print.h"
#include "board/place_bridge.h"
#include "game/recent_files.h"
#include "generator/batch.h"
#include "generator/new_puzzle.h"
#include "model/import_grid.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "model/number_grid.h"
#include "solver/auto_solve.h"
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
    EXPECT_EQ(game.board.layout.CellSize, 434) << "433.8, a sixth of the width";
    EXPECT_EQ(game.board.FittedCellSize, 434);
}

TEST(LoadPuzzle, LeavesNothingOfThePuzzleBefore) {
    LoadedGame game({kSmallPuzzle, Record({"11", "11"})});
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
    loadPart();
    game.ExpectNone(9);
    Collection of = game.collection;
    of.CollectionPath = game.PathOfCollection();
    of.PuzzleNumber = 9;
    game.Run(ShowAgain, ShownPuzzle{{}, of});
    EXPECT_EQ(game.board.puzzle, Puzzle({3, 3}));
    EXPECT_FALSE(game.collection.leftOpen);
    loadPart();
    CloseFiles(game);
    game.ExpectNoLoad(game.PathOfCollection(), 3);
    EXPECT_EQ(game.board.puzzle, Puzzle({3, 3}));
    EXPECT_EQ(game.world.Text(WindowText::BoardSize), "7x7");
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
    game.Load(1);
    for (const int number : {3, 2, 1})
        EXPECT_EQ(game.After(0, MouseButton::Left), number);
    for (const int number : {2, 3, 1})
        EXPECT_EQ(game.After(2, MouseButton::Left), number);
    EXPECT_EQ(game.After(2, MouseButton::Right), 3);
    EXPECT_EQ(game.After(0, MouseButton::Right), 1);
    std::map<int, int> drawn;
    for (int i = 0; i < 60; ++i)
        ++drawn[game.After(1, MouseButton::Left)];
    EXPECT_TRUE(drawn[1] > 5 && drawn[2] > 5 && drawn[3] > 5);
    game.Load(1);
    game.folder.Write("collection.tdw", kSmallPuzzle);
    EXPECT_EQ(game.After(2, MouseButton::Left), 1) << "the lines are counted again";
    game.world.Seen();
    game.After(2, MouseButton::Left);
    EXPECT_EQ(game.world.Seen(), "") << "the only puzzle is there already";
}

TEST(Arrows, SayThatPlayIsBack) {
    LoadedGame game({kSmallPuzzle, Record({"1.1"})});
    LayBridge(game.board, PlaceMode::Cycle, 3, 7);
    game.Run(AfterMove);
    for (const char* said : {"", "Your bridges are back"}) {
        game.Run(arrows_Click, 2, MouseButton::Left);
        EXPECT_EQ(game.world.Status(), said);
    }
    EXPECT_EQ(game.board.BridgeState(3, 7), 1);
}

TEST(PuzNumNow, OnlyEnterAndNumbersInRangeLoad) {
    LoadedGame game({kSmallPuzzle, kSmallPuzzle}, 2);
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

constexpr const char* kLoadPick = "Select a grid file|*.grd;*.txt|Grid Files|open";
constexpr const char* kSavePick = "Save the grid|*.grd;*.txt|Grid Files|save";

TEST(ReadGridFile, AGridBecomesThePuzzleAndTheCollectionStaysWhatItWas) {
    LoadedGame game({kSmallPuzzle, kSmallPuzzle}, 2);
    game.collection.leftOpen = true;
    const std::string path = game.folder.Write("grid.txt", "2.9\n1\n");
    for (const auto& [file, number, error] :
         {std::tuple{path, 2, "Grid 2 not found"}, {"missing", 1, "Error reading grid from:\r\nmissing"}}) {
        game.world.Expect(error, kCritical);
        EXPECT_FALSE(game.Run(ReadGridFile, file, number));
        EXPECT_EQ(game.board.puzzle, *ParsePuzzleRecord(kSmallPuzzle));
    }
    game.board.BridgeState.Set(3, 7, 1);
    EXPECT_TRUE(game.Run(ReadGridFile, path, 1));
    EXPECT_EQ(game.Numbers(), (Lines{"2.9", "1.."}));
    EXPECT_EQ(game.world.Seen(), "box, box, status: Edited puzzle read");
    const auto& texts = game.world.texts;
    EXPECT_EQ(texts.at(WindowText::BoardSize) + texts.at(WindowText::CollectionName), "2x3grid.txt");
    EXPECT_TRUE(game.board.BridgeState.InBothOrders().empty());
    EXPECT_EQ(game.board.FittedCellSize, 1800);
    EXPECT_EQ(game.collection.PuzzleNumber, 2);
    EXPECT_EQ(game.collection.CollectionPath, game.PathOfCollection());
    EXPECT_FALSE(game.collection.leftOpen);
}

TEST(ImportedPuzzle, StaysWhateverIsTriedWithIt) {
    LoadedGame game({kSmallPuzzle, kSmallPuzzle}, 2);
    game.Run(ReadGridFile, game.folder.Write("grid.txt", "3.4\n...\n1.1\n"), 1);
    const Puzzle imported = game.board.puzzle;
    game.world.AnswerAll(kYes);
    game.world.texts[WindowText::BoardSize] = "7";
    std::filesystem::create_directory("temp.txt");
    for (const auto command :
         {mnuautosol_Click, mnupuzreset_Click, cmdnew1_Click, mnucreatemany_Click, control27_Click}) {
        game.world.batch = [](BatchRequest& request) { return request = {"1", "7", "7", "out.txt"}, true; };
        game.world.print = [](PrintRequest& request) { return request.first = request.last = "1", true; };
        game.Run(command);
        EXPECT_EQ(game.board.puzzle, imported);
        EXPECT_EQ(game.world.Text(WindowText::BoardSize), command == control27_Click ? "7" : "3x3");
        game.world.texts[WindowText::BoardSize] = "7";
    }
    game.world.batch = nullptr;
    game.world.print = nullptr;
    game.Run(mnucopyclippuz_Click);
    RecordingSurface picture;
    game.world.copied.draw(picture);
    EXPECT_EQ(picture.Calls("print").front(), "print 400 200 Imported puzzle 0");
    game.TypeNumber("2");
    EXPECT_TRUE(game.collection.importedFrom.empty());
}

TEST(Import, NamesTheFileWhateverBecameOfIt) {
    TestGame game;
    const std::string missing = game.folder.Path("missing.txt");
    for (const std::string& path : {std::string(), game.folder.Write("out.txt", "1.1\r\n"), missing}) {
        game.world.ExpectPick("Select a grid file|*.txt|Tide Files|open", path);
        if (path == missing) game.world.Expect("Error reading grid from:\r\n" + missing, kCritical);
        game.Run(mnuimport_Click);
    }
    EXPECT_EQ(game.world.Seen(),
              "pick, pick, status: Edited puzzle read, status: File out.txt imported, pick, box, "
              "status: File missing.txt imported");
}

TEST(Import, AsksWhichOfSeveralGridsAndTellsWhatTheyAre) {
    TestGame game;
    const std::string path = game.folder.Write("many.txt", "2x3\n1.1\n...\n\nNo grid\n\n2 . 2\n");
    const std::string words = "3 grids of 2x3 and 1x3, one not a puzzle: line 5";
    for (const int chosen : {3, 0}) {
        game.world.chosen = chosen;
        game.world.ExpectPick("Select a grid file|*.txt|Tide Files|open", path);
        game.Run(mnuimport_Click);
        EXPECT_EQ(game.world.Seen(), "pick, grid? many.txt: " + words +
                                         (chosen == 0 ? ""
                                                      : ", status: Edited puzzle read, status: File many.txt imported, "
                                                        "grid 3: " +
                                                            words));
        EXPECT_EQ(game.Numbers(), Lines{"2.2"});
    }
    game.world.ExpectPick("Select a grid file|*.txt|Tide Files|open", game.folder.Write("one.txt", "3.3\n\nNo\n"));
    game.Run(mnuimport_Click);
    EXPECT_EQ(game.world.Status(), "File one.txt imported: 2 grids of 1x3, one not a puzzle: line 3")
        << "nobody is asked";
    NumberGrid editor;
    game.world.chosen = 1;
    game.world.ExpectPick(kLoadPick, path);
    EXPECT_TRUE(game.Run(LoadNumberGrid, editor));
    EXPECT_EQ(PlainGrid(editor.Numbers()), (Lines{"1.1", "..."}));
}

TEST(Paste, TakesEveryFormAndWhatWasCopiedAsText) {
    LoadedGame game({kSmallPuzzle});
    const Lines numbers = game.Numbers();
    game.Run(mnucopytext_Click);
    EXPECT_EQ(game.world.Seen(), "status: Puzzle copied as text");
    const auto pasted = [&game](const std::string& text) {
        game.world.clipboard = text;
        game.Run(mnupastepuzzle_Click);
        EXPECT_TRUE(game.world.Status().starts_with("Puzzle imported")) << text;
        return game.Numbers();
    };
    EXPECT_EQ(pasted(game.world.clipboard), numbers);
    const Lines spaced(25, ". 2" + std::string(45, ' ') + ".");
    EXPECT_EQ(pasted("25x25\n" + Joined(spaced)), Lines(25, ".2" + std::string(23, '.')));
    game.world.chosen = 30;
    EXPECT_EQ(pasted(Joined(Lines(29, "1.1\n")) + "2.2"), Lines{"2.2"}) << "the last of many";
    const std::string heading = "The puzzles of this evening\n\n";
    game.world.chosen = 2;
    EXPECT_EQ(pasted(heading + "7x7\n" + Joined(Lines(7, "1.....1"))), Lines(7, "1.....1"));
}

TEST(Paste, TakesLinesOfBothEndsAndPassesOverEmptyOnesAtTheEnd) {
    std::string row = "1.3.";
    for (int i = 0; i < 21; ++i)
        row += "ä";
    for (const std::string end : {"\n", "\r\n"}) {
        TestGame game;
        for (int i = 0; i < 25; ++i)
            game.world.clipboard += row + end;
        game.world.clipboard += end + end;
        game.Run(mnupastepuzzle_Click);
        EXPECT_EQ(game.Numbers(), Lines(25, "1.3." + std::string(21, '.')));
        EXPECT_EQ(game.world.Seen(), "status: Edited puzzle read, status: Puzzle imported");
        EXPECT_EQ(game.folder.Read("tempin.txt"), Joined(Lines(25, row)));
    }
}

TEST(Paste, RefusesWhatFitsNoBoard) {
    LoadedGame game({kSmallPuzzle});
    for (const std::string& text :
         {std::string("  "), std::string("\r\n\r\n"), Joined(Lines(26, "1")), std::string(26, '1') + "\n1\n",
          std::string("\n1\n"), std::string("A letter is no grid at all:\n\n1.\n\n2.\n"), std::string("1.1")}) {
        if (text == "1.1") std::filesystem::create_directory("tempin.txt");
        game.world.clipboard = text;
        game.Run(mnupastepuzzle_Click);
        EXPECT_EQ(game.world.Seen(), "status: Error importing puzzle") << text;
    }
    EXPECT_EQ(game.board.puzzle.Rows, 7);
    std::filesystem::remove("tempin.txt");
    game.world.Expect("Error reading grid from:\r\ntempin.txt", kCritical);
    game.world.clipboard = "#9999\n1.1";
    game.Run(mnupastepuzzle_Click);
    EXPECT_EQ(game.world.Seen(), "box, status: Puzzle imported") << "the reader has said it";
}

/// A number editor that is typed into; "<" is for Backspace.
struct Typed : NumberGrid {
    Typed(int rows, int cols, const std::string& keys) {
        Resize(rows, cols);
        for (const char key : keys)
            key == '<' ? Backspace() : static_cast<void>(Type(key));
    }
    /// The rows, and the cursor's cell.
    std::string State() const {
        std::string all;
        for (const std::string& row : PlainGrid(Numbers()))
            all += row + "/";
        return all + " " + std::to_string(Cursor().row) + "," + std::to_string(Cursor().col);
    }
};

TEST(NumberGrid, KeysFillItInReadingOrderAndTakeThatBack) {
    EXPECT_EQ(NumberGrid().Numbers(), Puzzle({7, 7}));
    EXPECT_EQ(Typed(2, 3, "19x/2").State(), "12./.../ 1,3") << "other keys do nothing";
    EXPECT_EQ(Typed(2, 3, "1.2 08").State(), "1.2/..8/ 2,3");
    EXPECT_EQ(Typed(2, 3, "123456<<").State(), "123/4../ 2,2");
    EXPECT_EQ(Typed(3, 2, "1234<").State(), "12/3./../ 2,2");
    EXPECT_EQ(Typed(2, 2, "12<<<<").State(), "../../ 1,1");
    EXPECT_FALSE(NumberGrid().Type('9'));
}

TEST(NumberGrid, TheCursorStaysInItWhateverItsSize) {
    Typed grid(2, 3, "12345");
    grid.MoveBy(-1, -1);
    grid.Delete();
    EXPECT_EQ(grid.State(), "1.3/45./ 1,2");
    grid.MoveTo(9, 9);
    EXPECT_EQ(grid.State(), "1.3/45./ 2,3");
    grid.Resize(0, 2);
    EXPECT_EQ(grid.State(), "1./ 1,2");
    grid.MoveTo(-5, -5);
    grid.Resize(2, 2);
    EXPECT_EQ(grid.State(), "1./../ 1,1") << "what lay outside is gone";
    grid.MoveTo(2, 2);
    grid.Clear();
    EXPECT_EQ(grid.State(), "../../ 1,1");
    grid.Resize(99, 26);
    EXPECT_EQ(grid.Numbers(), Puzzle({25, 25}));
    grid.Take(Puzzle());
    EXPECT_EQ(grid.State(), "./ 1,1") << "before the first load there is no board";
}

TEST(NumberGrid, IsSavedLoadedAndPlayed) {
    LoadedGame game({Record({"2-----2"})});
    Typed grid(7, 7, "123");
    EditCurrentPuzzle(game, grid);
    EXPECT_EQ(grid.State(), "2.....2/ 1,1");
    const std::string path = game.folder.Path("mine");
    game.world.ExpectPick(kSavePick, path);
    EXPECT_TRUE(game.Run(SaveNumberGrid, grid));
    EXPECT_EQ(game.folder.Read("mine.grd"), "#0107\r\n2.....2\r\n");
    NumberGrid loaded;
    game.world.ExpectPick(kLoadPick, path + ".grd");
    EXPECT_TRUE(game.Run(LoadNumberGrid, loaded) && loaded.Type('3'));
    EXPECT_TRUE(game.Run(UseNumberGrid, loaded));
    EXPECT_EQ(game.folder.Read("tempeditpuzzle.txt"), "#0107\r\n3.....2\r\n");
    EXPECT_EQ(game.Numbers(), Lines{"3.....2"});
}

TEST(NumberGrid, WhatCannotBeReadOrWrittenChangesNothing) {
    TestGame game;
    NumberGrid grid;
    const std::string bad = game.folder.Write("bad.grd", "#9999\n");
    game.world.ExpectPick(kSavePick, bad);
    game.world.Expect("OverWrite file: " + bad + " ?", "system yesno", kNo);
    EXPECT_FALSE(game.Run(SaveNumberGrid, grid));
    game.world.ExpectPick(kLoadPick, bad);
    game.world.Expect("Error reading grid from:\r\n" + bad, kCritical);
    EXPECT_FALSE(game.Run(LoadNumberGrid, grid));
    EXPECT_EQ(grid.Rows(), 7);
    std::filesystem::create_directory("tempeditpuzzle.txt");
    game.world.Expect("The grid could not be written:\r\ntempeditpuzzle.txt: Is a directory", kCritical);
    EXPECT_FALSE(game.Run(UseNumberGrid, grid));
}

}  // namespace
}  // namespace tidewalk::test
