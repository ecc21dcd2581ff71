// SPDX-License-Identifier: MIT
#include "board/board_keys.h"

#include <gtest/gtest.h>

#include <set>

#include "board/board_mouse.h"
#include "board/check_bridges.h"
#include "board/drawing.h"
#include "board/layout.h"
#include "model/job.h"
#include "program/escape.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A game on these rows, played with keys.
struct KeyPlay : TestGame {
    explicit KeyPlay(const std::vector<std::string>& rows) : TestGame({Record(rows)}) { EXPECT_EQ(Load(1), 0); }
    explicit KeyPlay(const char* record) : TestGame({record}) { EXPECT_EQ(Load(1), 0); }

    void Keys(std::initializer_list<BoardKey> keys) {
        for (const BoardKey key : keys)
            Picture1_KeyDown(*this, key);
    }

    /// Goes to an island with the arrow keys alone, by the shortest way. False when there is none.
    bool WalkTo(CellNumber to) {
        std::vector<std::pair<CellNumber, std::vector<BoardKey>>> ways{{FocusedIsland(*this), {}}};
        std::set<CellNumber> seen{ways.front().first};
        for (std::size_t at = 0; at < ways.size(); ++at) {
            const auto [here, way] = ways[at];
            if (here == to) {
                for (const BoardKey key : way)
                    Picture1_KeyDown(*this, key);
                return FocusedIsland(*this) == to;
            }
            for (const BoardKey key : {BoardKey::Left, BoardKey::Right, BoardKey::Up, BoardKey::Down}) {
                const CellNumber next = IslandTowards(*this, key, here);
                if (!seen.insert(next).second) continue;
                ways.emplace_back(next, way);
                ways.back().second.push_back(key);
            }
        }
        return false;
    }
};

const std::vector<std::string> kField{
    "1.2..", "..3.4", ".....", ".5...", "....6",
};

TEST(Keys, ArrowsGoToTheNearestInLineAndElseToTheNearestOnThatSide) {
    KeyPlay game(kField);
    const auto numberAt = [&](BoardKey key, int number) {
        for (CellNumber id = 1; id <= game.CellCount; ++id) {
            if (game.IslandAt(id) == number) return game.IslandAt(IslandTowards(game, key, id));
        }
        return 0;
    };
    EXPECT_EQ(numberAt(BoardKey::Right, 1), 2);
    EXPECT_EQ(numberAt(BoardKey::Down, 1), 3) << "nothing below it: the nearest one further down";
    EXPECT_EQ(numberAt(BoardKey::Down, 4), 6) << "in line, though 5 is no further away";
    EXPECT_EQ(numberAt(BoardKey::Left, 3), 1) << "as far as 5, but less aside";
    EXPECT_EQ(numberAt(BoardKey::Up, 2), 2) << "the board ends there";
    EXPECT_EQ(numberAt(BoardKey::Up, 5), 3);
}

TEST(Keys, TheFirstKeyOnlyShowsWhereTheFocusIs) {
    KeyPlay game(kField);
    EXPECT_EQ(FocusedIsland(game), 0);
    game.Keys({BoardKey::Lay});
    EXPECT_EQ(FocusedIsland(game), 1);
    EXPECT_FALSE(game.Line1.visible);
    game.Keys({BoardKey::Last});
    EXPECT_EQ(game.IslandAt(FocusedIsland(game)), 6);
    game.Keys({BoardKey::Previous, BoardKey::Previous});
    EXPECT_EQ(game.IslandAt(FocusedIsland(game)), 4);
    game.Keys({BoardKey::First, BoardKey::Previous, BoardKey::Next});
    EXPECT_EQ(game.IslandAt(FocusedIsland(game)), 2);
    EXPECT_EQ(game.Load(1), 0);
    EXPECT_EQ(FocusedIsland(game), 0) << "another board, another focus";
}

TEST(Keys, LayDoesWhatClicksDo) {
    KeyPlay game(kField);
    Picture1_GotFocus(game);
    for (const int bridges : {1, 2, 0}) {
        game.Keys({BoardKey::First, BoardKey::Lay, BoardKey::Right});
        EXPECT_TRUE(game.Line1.visible);
        EXPECT_EQ(game.Line1.x2, game.IslandX[3]);
        game.Keys({BoardKey::Lay});
        EXPECT_FALSE(game.Line1.visible);
        EXPECT_EQ(game.BridgeState(1, 3), bridges);
    }
    EXPECT_EQ(game.UndoList.size(), 3U);
    game.Keys({BoardKey::Lay, BoardKey::Lay});
    EXPECT_FALSE(game.Line1.visible) << "the selected island again drops it";
    game.Keys({BoardKey::Lay, BoardKey::Left, BoardKey::LayDouble});
    EXPECT_EQ(game.BridgeState(1, 3), 2);
    game.Keys({BoardKey::Lay, BoardKey::Right, BoardKey::Remove});
    EXPECT_EQ(game.BridgeState(1, 3), 0);
    EXPECT_EQ(game.UndoList.size(), 5U);
    game.Keys({BoardKey::Remove, BoardKey::LayDouble});
    EXPECT_EQ(game.UndoList.size(), 5U) << "nothing is selected";
}

TEST(Keys, MouseAndKeysTakeTurns) {
    KeyPlay game(kField);
    Picture1_MouseMove(game, false, {game.IslandX[8] * 1.0, game.IslandY[8] * 1.0}, {});
    Picture1_MouseDown(game, MouseButton::Left, {});
    Picture1_MouseUp(game, MouseButton::Left, false, {game.IslandX[8] * 1.0, game.IslandY[8] * 1.0});
    Picture1_Click(game);
    EXPECT_FALSE(game.focusShows);
    game.Keys({BoardKey::Right, BoardKey::Lay});
    EXPECT_TRUE(game.focusShows);
    EXPECT_EQ(game.BridgeState(8, 10), 1) << "the keyboard goes on where the mouse was";
    EXPECT_EQ(game.HoverCol, 3) << "the pointer is still where it was";
}

TEST(Keys, TheIslandWithTheFocusIsBroughtIntoView) {
    KeyPlay game({"1" + std::string(23, '.') + "1"});
    game.CellSize = 700;
    LayoutBoard(game);
    const auto at = [&](CellNumber id) { return game.Picture1.left + game.IslandX[id]; };
    const double width = game.pictures.Picture5Extent().width;
    ASSERT_GT(game.Picture1.width, width);
    game.Keys({BoardKey::First});
    EXPECT_DOUBLE_EQ(at(1), 420);
    game.Keys({BoardKey::Right});
    EXPECT_DOUBLE_EQ(at(25), width - 420);
    const double left = game.Picture1.left;
    game.Keys({BoardKey::Lay, BoardKey::Last});
    EXPECT_EQ(game.Picture1.left, left) << "it shows already";
}

TEST(Keys, DuringAJobTheBoardTakesNone) {
    KeyPlay game(kField);
    game.Keys({BoardKey::First, BoardKey::Lay, BoardKey::Right});
    game.BusyFlag = YesValue;
    game.Keys({BoardKey::Lay, BoardKey::Last});
    Picture1_GotFocus(game);
    EXPECT_FALSE(DropSelection(game));
    EXPECT_EQ(FocusedIsland(game), 3);
    EXPECT_TRUE(game.UndoList.empty());
}

TEST(Keys, EscapeLetsGoFirstAndCancelsThen) {
    KeyPlay game(kField);
    game.window.texts[Control::pb] = "Not done yet";
    game.Keys({BoardKey::First, BoardKey::Lay});
    can2_Click(game);
    EXPECT_FALSE(game.Line1.visible);
    EXPECT_EQ(game.AnchorRow, 0);
    EXPECT_EQ(game.window.texts[Control::pb], "Not done yet");
    can2_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "");
    game.Keys({BoardKey::Lay});
    game.BusyFlag = YesValue;
    can2_Click(game);
    EXPECT_EQ(game.CancelFlag, YesValue);
    EXPECT_TRUE(game.Line1.visible);
}

TEST(Keys, APuzzleIsPlayedToTheEndWithArrowsAndLay) {
    KeyPlay game(kSmallPuzzle);
    Picture1_GotFocus(game);
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link link = game.LinkList[i];
        for (int bridge = link.state; bridge < 2; ++bridge) {
            ASSERT_TRUE(game.WalkTo(link.first));
            game.Keys({BoardKey::Lay});
            ASSERT_TRUE(game.WalkTo(link.second));
            game.Keys({BoardKey::Lay});
        }
    }
    game.prompts.Expect("All Done!", "vbhappy+vbok", 1);
    cmdverify_Click(game);
}

TEST(FinishedIslands, LookPalerAtBothEndsAsSoonAsTheirNumberIsReached) {
    KeyPlay game({"1.2..", ".....", "2....", ".....", "....."});
    game.Picture1BackColor = kWhite;
    game.NodeColour = kBlack;
    RecordingSurface& picture = game.pictures.surface;
    const auto pale = [&] {
        int found = 0;
        for (const std::string& call : picture.calls) {
            if (call.starts_with("filledbox") && !call.ends_with(" 0")) ++found;
        }
        picture.calls.clear();
        return found;
    };
    picture.calls.clear();
    game.Keys({BoardKey::First, BoardKey::First, BoardKey::Lay, BoardKey::Right, BoardKey::Lay});
    EXPECT_EQ(pale(), 0) << "the option is off at first";
    game.ShowFinished = 1;
    RedrawBoard(game, true);
    EXPECT_EQ(pale(), 0) << "the stored solution is another matter";
    EXPECT_EQ(game.ShowFinished, 1);
    game.Keys({BoardKey::Lay, BoardKey::Left, BoardKey::Lay});
    EXPECT_EQ(pale(), 1) << "two bridges: the 2 is finished, the 1 no more";
    game.Keys({BoardKey::Lay, BoardKey::Right, BoardKey::Remove});
    EXPECT_EQ(pale(), 0);
    game.Keys({BoardKey::Lay, BoardKey::Left, BoardKey::Lay});
    EXPECT_EQ(pale(), 1);
}

}  // namespace
}  // namespace tidewalk::test
