// SPDX-License-Identifier: MIT
#include "model/load_puzzle.h"

#include <gtest/gtest.h>

#include "model/navigation.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(LoadPuzzle, PastTheEndReportsAndKeepsTheNumber) {
    TestGame game({kSmallPuzzle, kSmallPuzzle});
    EXPECT_EQ(game.Load(1), 0);
    game.prompts.Expect("puzzle 99 not found", "vbinformation+vbok", 1);
    EXPECT_EQ(game.Load(99), 1);
    EXPECT_EQ(game.PuzzleNumber, 1);
}

}  // namespace
}  // namespace tidewalk::test
