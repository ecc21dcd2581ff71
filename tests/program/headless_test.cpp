// SPDX-License-Identifier: MIT
#include "program/headless.h"

#include <gtest/gtest.h>

#include "generator/new_puzzle.h"
#include "model/load_puzzle.h"
#include "program/exit.h"
#include "solver/auto_solve.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(HeadlessGame, LoadsSolvesAndCreates) {
    const TempFolder folder;
    const std::string path = folder.Write("one.tdw", std::string(kSmallPuzzle) + "\r\n");
    const auto game = std::make_unique<HeadlessGame>();
    ASSERT_EQ(LoadPuzzle(*game, path, 1), 0);
    mnuautosol_Click(*game);
    EXPECT_EQ(game->window.Text(Control::pb), "Solved");
    game->window.SetText(Control::GridSize, "9x8");
    cmdnew1_Click(*game);
    EXPECT_EQ(game->window.Text(Control::pb), "Puzzle created");
    EXPECT_EQ(game->Rows, 9);
}

TEST(HeadlessGame, KeepsTheLastMessageAndConsentsToNothing) {
    const TempFolder folder;
    const auto game = std::make_unique<HeadlessGame>();
    EXPECT_EQ(LoadPuzzle(*game, "none.tdw", 3), 1);
    EXPECT_EQ(game->LastMessage(), "puzzle 3 not found");
    cmdexit_Click(*game);
    EXPECT_EQ(game->LastMessage(), "Exit?");
    EXPECT_FALSE(game->ending);
}

}  // namespace
}  // namespace tidewalk::test
