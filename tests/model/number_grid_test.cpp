// SPDX-License-Identifier: MIT
#include "model/number_grid.h"

#include <gtest/gtest.h>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

void TypeAll(NumberGrid& grid, const std::string& keys) {
    for (const char key : keys)
        grid.Type(key);
}

TEST(NumberGrid, DigitsFillTheGridInReadingOrderAndOtherKeysDoNothing) {
    NumberGrid grid;
    grid.Resize(2, 3);
    TypeAll(grid, "1.2");
    EXPECT_EQ(grid.Cursor(), (CellPlace{2, 1}));
    EXPECT_FALSE(grid.Type('9'));
    EXPECT_FALSE(grid.Type('x'));
    TypeAll(grid, " 08");
    EXPECT_EQ(grid.Cursor(), (CellPlace{2, 3}));
    EXPECT_EQ(grid.Text(), "#0203\r\n1.2\r\n..8\r\n");
}

TEST(NumberGrid, BackspaceTakesTheLastTypedNumberBack) {
    NumberGrid grid;
    grid.Resize(2, 2);
    TypeAll(grid, "1234");
    for (const char* expected : {"12\r\n3.", "12\r\n..", "1.\r\n..", "..\r\n..", "..\r\n.."}) {
        grid.Backspace();
        EXPECT_EQ(grid.Text(), "#0202\r\n" + std::string(expected) + "\r\n");
    }
    EXPECT_EQ(grid.Cursor(), (CellPlace{1, 1}));
}

TEST(NumberGrid, ASmallerGridForgetsWhatLiesOutsideAndKeepsTheCursorIn) {
    NumberGrid grid;
    grid.Resize(25, 25);
    grid.MoveTo(25, 99);
    grid.Type('8');
    EXPECT_EQ(grid.Cursor(), (CellPlace{25, 25}));
    grid.Resize(0, 3);
    EXPECT_EQ(grid.Cursor(), (CellPlace{1, 3}));
    grid.Resize(99, 25);
    EXPECT_EQ(grid.Rows(), 25);
    EXPECT_EQ(grid.At(25, 25), 0);
}

TEST(NumberGrid, SavedLoadedAndPlayed) {
    TestGame game;
    NumberGrid grid;
    grid.Resize(1, 7);
    TypeAll(grid, "2.....2");
    const std::string unchanged = grid.Text();
    game.filePicker.Answer(game.folder.Path("mine.grd"));
    EXPECT_TRUE(SaveNumberGrid(game, grid));
    EXPECT_EQ(game.folder.Read("mine.grd"), unchanged);
    NumberGrid loaded;
    game.filePicker.Answer(game.folder.Path("mine.grd"));
    EXPECT_TRUE(LoadNumberGrid(game, loaded));
    EXPECT_EQ(loaded.Text(), unchanged);
    EXPECT_TRUE(UseNumberGrid(game, loaded));
    EXPECT_EQ(game.folder.Read("tempeditpuzzle.txt"), unchanged);
    EXPECT_EQ(game.GivenGrid(1, 7), 2);
    NumberGrid edited;
    EditCurrentPuzzle(game, edited);
    EXPECT_EQ(edited.Text(), unchanged);
}

TEST(NumberGrid, AFileThatIsNoGridChangesNothing) {
    TestGame game;
    NumberGrid grid;
    const std::string path = game.folder.Write("bad.grd", "#9999\n");
    game.filePicker.Answer(path);
    game.prompts.Expect("Error reading grid from:\r\n" + path, "vbcritical+vbok", 1);
    EXPECT_FALSE(LoadNumberGrid(game, grid));
    EXPECT_EQ(grid.Rows(), 7);
    game.jobRunning = true;
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    EXPECT_FALSE(UseNumberGrid(game, grid));
}

}  // namespace
}  // namespace tidewalk::test
