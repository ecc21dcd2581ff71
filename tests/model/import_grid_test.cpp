// SPDX-License-Identifier: MIT
// Grids of numbers from files, from the clipboard and from the number editor.
#include "model/import_grid.h"

#include <filesystem>

#include "board/board_commands.h"
#include "board/copy_and_print.h"
#include "generator/batch.h"
#include "generator/new_puzzle.h"
#include "model/number_grid.h"
#include "solver/auto_solve.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kLoadPick = "Select a grid file|*.grd;*.txt|Grid Files|open";
constexpr const char* kSavePick = "Save the grid|*.grd;*.txt|Grid Files|save";

TEST(ReadGridFile, AGridBecomesThePuzzleAndTheCollectionStaysWhatItWas) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    game.Load(2);
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
    EXPECT_EQ(game.world.toolTips[WindowText::CollectionName], path);
    EXPECT_TRUE(game.board.BridgeState.InBothOrders().empty());
    EXPECT_EQ(game.board.FittedCellSize, 1800);
    EXPECT_EQ(game.collection.PuzzleNumber, 2);
    EXPECT_EQ(game.collection.CollectionPath, game.PathOfCollection());
    EXPECT_FALSE(game.collection.leftOpen);
}

TEST(ImportedPuzzle, StaysWhateverIsTriedWithIt) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    game.Load(2);
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
    game.world.copy(picture);
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
    TestGame game({kSmallPuzzle});
    game.Load(1);
    for (const std::string& text : {std::string(), std::string("  "), std::string("\r\n\r\n"), Joined(Lines(26, "1")),
                                    std::string(26, '1') + "\n1\n", std::string("\n1\n"), std::string("1.1")}) {
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
    EXPECT_EQ(Typed(2, 3, "1.2").State(), "1.2/.../ 2,1");
    EXPECT_EQ(Typed(2, 3, "19x/2").State(), "12./.../ 1,3") << "other keys do nothing";
    EXPECT_EQ(Typed(2, 3, "1.2 08").State(), "1.2/..8/ 2,3");
    EXPECT_EQ(Typed(2, 3, "123456<").State(), "123/45./ 2,3");
    EXPECT_EQ(Typed(2, 3, "123456<<").State(), "123/4../ 2,2");
    EXPECT_EQ(Typed(3, 2, "1234<").State(), "12/3./../ 2,2");
    EXPECT_EQ(Typed(2, 2, "1234<<<").State(), "1./../ 1,2");
    EXPECT_EQ(Typed(2, 2, "12<<<<").State(), "../../ 1,1");
    NumberGrid grid;
    EXPECT_FALSE(grid.Type('9'));
    EXPECT_TRUE(grid.Type('8') && grid.Type('.'));
}

TEST(NumberGrid, TheCursorStaysInItWhateverItsSize) {
    Typed grid(2, 3, "12345");
    grid.MoveBy(-1, -1);
    grid.Delete();
    grid.Resize(2, 3);
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
    TestGame game({Record({"2-----2"})});
    game.Load(1);
    Typed grid(7, 7, "123");
    EditCurrentPuzzle(game, grid);
    EXPECT_EQ(grid.State(), "2.....2/ 1,1");
    const std::string path = game.folder.Path("mine");
    for (const bool again : {false, true}) {
        game.world.ExpectPick(kSavePick, path);
        if (again) game.world.Expect("OverWrite file: " + path + ".grd ?", "system yesno", kNo);
        EXPECT_EQ(game.Run(SaveNumberGrid, grid), !again);
    }
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
    game.world.ExpectPick(kSavePick, "");
    EXPECT_FALSE(game.Run(SaveNumberGrid, grid));
    const std::string bad = game.folder.Write("bad.grd", "#9999\n");
    for (const std::string& path : {std::string(), bad}) {
        game.world.ExpectPick(kLoadPick, path);
        if (path == bad) game.world.Expect("Error reading grid from:\r\n" + bad, kCritical);
        EXPECT_FALSE(game.Run(LoadNumberGrid, grid));
        EXPECT_EQ(grid.Rows(), 7);
    }
    std::filesystem::create_directory("tempeditpuzzle.txt");
    game.world.Expect("The grid could not be written:\r\ntempeditpuzzle.txt: Is a directory", kCritical);
    EXPECT_FALSE(game.Run(UseNumberGrid, grid));
}

}  // namespace
}  // namespace tidewalk::test
