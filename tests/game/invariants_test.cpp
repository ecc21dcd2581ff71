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
    void (*const damages[])(Game&, Board&) = {
        [](Game&, Board& board) { board.BridgeState.Set(3, 7, 3); },
        [](Game&, Board& board) { board.BridgeState.Set(3, 21, 1); },
        [](Game&, Board& board) { board.BridgeState.Set(3, 625, 1); },
        [](Game&, Board& board) {
            board.history.Push(UndoRecord{1, 3, 0});
        },
        [](Game&, Board& board) { board.puzzle.Rows = 26; },
        [](Game&, Board& board) { board.puzzle.LinkList.front().second = 50; },
        [](Game&, Board& board) { board.layout.size.cols = 8; },
        [](Game&, Board& board) { board.HoverRow = 8; },
        [](Game&, Board& board) { board.AnchorCol = 1; },
        [](Game&, Board& board) { board.Line1.visible = false; },
        [](Game&, Board& board) { board.Shape1.visible = true; },
        [](Game& game, Board&) { game.options.SchemeColours[4] = kWhite + 1; },
        [](Game& game, Board&) { game.collection.CollectionPath.clear(); },
    };
    for (std::size_t i = 0; i < std::size(damages); ++i)
        EXPECT_TRUE(damaged(damages[i])) << i;
}

}  // namespace
}  // namespace tidewalk::test
