// SPDX-License-Identifier: MIT
// The judge of a game finds what it is there for.
#include "support/invariants.h"

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(CheckInvariants, ALoadedPuzzleIsWholeAndEveryDamageIsSeen) {
    const auto damaged = [](const auto& damage) {
        TestGame game({kSmallPuzzle});
        game.Load(1);
        Board& board = game.board;
        board.BridgeState.Set(3, 7, 2);
        board.AnchorRow = 1;
        board.AnchorCol = 3;
        board.Line1.visible = true;
        EXPECT_EQ(CheckInvariants(game), "");
        damage(game, board);
        return !CheckInvariants(game).empty();
    };
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.BridgeState.Set(3, 7, 3); }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.BridgeState.Set(3, 21, 1); }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.BridgeState.Set(3, 625, 1); }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.history.Push({1, 3, 0}); }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.history.Push({3, 7, 3}); }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.puzzle.Rows = 26; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.puzzle.Cols = 0; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.puzzle.LinkList.front().second = 50; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.layout.CellSize = 100; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.layout.size.cols = 8; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.HoverRow = 8; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.AnchorCol = 1; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.Line1.visible = false; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.FocusRow = 1; }));
    EXPECT_TRUE(damaged([](Game&, Board& board) { board.Shape1.visible = true; }));
    EXPECT_TRUE(damaged([](Game& game, Board&) { game.options.SchemeColours[4] = kWhite + 1; }));
    EXPECT_TRUE(damaged([](Game& game, Board&) { game.options.PrintLineWidth = 0; }));
    EXPECT_TRUE(damaged([](Game& game, Board&) { game.collection.CollectionPath.clear(); }));
}

}  // namespace
}  // namespace tidewalk::test
