// SPDX-License-Identifier: MIT
// The Solutions command.
#include "board/board_keys.h"
#include "generator/new_puzzle.h"
#include "solver/show_solutions.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// Four islands in a ring, which have two solutions.
const Rows kRing{"3.3", "...", "3.3"};

TEST(Solutions, ShowsTheOnlyOneOrTwoAndWhereTheyDifferAndTouchesNothing) {
    TestGame game({Record(kRing), kSmallPuzzle});
    const FoundSolutions& shown = game.world.solutions;
    for (const int number : {1, 2}) {
        game.Load(number);
        for (const BoardKey key : {BoardKey::First, BoardKey::First, BoardKey::Lay, BoardKey::Right, BoardKey::Lay})
            game.Run(Picture1_KeyDown, key);
        game.world.Seen();
        const auto moves = game.board.history.Revision();
        const BridgeTable laid = game.board.BridgeState;
        game.Run(mnusolutions_Click);
        EXPECT_EQ(game.world.Seen(),
                  "busy, status: Looking for solutions ..., events, status: , progress: 0 of 0, "
                  "not busy, solutions");
        EXPECT_EQ(game.board.history.Revision(), moves);
        EXPECT_EQ(game.board.BridgeState, laid);
        if (number == 2) continue;
        EXPECT_EQ(shown.caption, "This puzzle has several solutions. Two of them:");
        ASSERT_EQ(shown.solutions.size(), 2U);
        ASSERT_EQ(shown.differences.size(), 4U);
        const bool twoFirst = shown.solutions[0].LinkList.at(0).Bridges() == 2;
        EXPECT_EQ(shown.differences[0].text, std::string("Row 1, column 1 to row 1, column 3: ") +
                                                 (twoFirst ? "two bridges in the first, one in the second"
                                                           : "one bridge in the first, two in the second"));
        EXPECT_EQ(shown.solutions[1].LinkList.at(0).Bridges(), twoFirst ? 1 : 2);
    }
    EXPECT_EQ(shown.caption, "This puzzle has exactly one solution.");
    EXPECT_EQ(PuzzleRecord(shown.solutions.at(0)).substr(11), std::string(kSmallPuzzle).substr(11));
    EXPECT_TRUE(shown.differences.empty());
}

TEST(Solutions, SaysThatThereIsNoneAndWhenItWasStopped) {
    TestGame game({Record({"3.3"}), Record(kRing), kSmallPuzzle});
    game.Load(1);
    game.world.Expect("No bridges solve this puzzle.", kInformation);
    game.Run(mnusolutions_Click);
    game.Load(2);
    game.world.step = 100;
    game.world.happen = [&] { game.Run(cmdcancel_Click); };
    game.Run(mnusolutions_Click);
    EXPECT_EQ(game.world.Status(), "The solutions are not known: the search was stopped");
    game.world.happen = [&] {
        if (game.collection.PuzzleNumber == 2) game.TypeNumber("3");
    };
    game.Run(mnusolutions_Click);
    EXPECT_EQ(game.world.Status(), "");
    EXPECT_TRUE(game.world.solutions.solutions.empty()) << "nothing was shown";
}

}  // namespace
}  // namespace tidewalk::test
