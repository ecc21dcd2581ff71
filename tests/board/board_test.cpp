// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "board/board_mouse.h"
#include "board/check_bridges.h"
#include "board/drawing.h"
#include "board/layout.h"
#include "board/place_bridge.h"
#include "board/undo.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A puzzle with islands in the corners of a 7x7 board and one in the middle of the upper side.
const std::vector<std::string> kCorners{"2..3..2", ".......", ".......", ".......", ".......", ".......", "2.....2"};
constexpr CellNumber kTopLeft = 1;
constexpr CellNumber kTop = 4;
constexpr CellNumber kTopRight = 7;
constexpr CellNumber kBottomLeft = 43;
constexpr CellNumber kBottomRight = 49;

/// A game with that puzzle, played with a mouse.
struct Play : TestGame {
    Play() : TestGame({Record(kCorners)}) { EXPECT_EQ(Load(1), 0); }

    Point At(CellNumber id) const { return {static_cast<double>(IslandX[id]), static_cast<double>(IslandY[id])}; }

    void Release(CellNumber id, MouseButton button, bool shift) {
        Picture1_MouseMove(*this, false, At(id), {});
        Picture1_MouseDown(*this, button, {});
        Picture1_MouseUp(*this, button, shift, At(id));
        if (button == MouseButton::Left) Picture1_Click(*this);
    }
    void Click(CellNumber id) { Release(id, MouseButton::Left, false); }
    void Join(CellNumber a, CellNumber b) {
        Click(a);
        Click(b);
    }
};

TEST(Layout, FollowsFromTheCellSize) {
    Play game;
    game.CellSize = 250;
    LayoutBoard(game);
    EXPECT_EQ(game.HalfCell, 125);
    EXPECT_EQ(game.DoubleGap, 42);
    EXPECT_DOUBLE_EQ(game.Picture1.width, 250 * 1.15 * 7);
    EXPECT_EQ(game.OriginX, 131) << "131.25";
    EXPECT_EQ(game.OriginY, 256) << "half a cell lower, 256.25";
    EXPECT_EQ(game.IslandX[kTopRight], 131 + 6 * 250);
    EXPECT_EQ(game.IslandY[kBottomLeft], 256 + 6 * 250);
    EXPECT_DOUBLE_EQ(game.Picture1.left, (9000 - game.Picture1.width) / 2);
    EXPECT_EQ(game.pictures.surface.fontSize, 5);
    EXPECT_EQ(game.LineWidth, 1);
}

TEST(Layout, ZoomStaysWithinItsLimitsAndKeepsTheBridges) {
    Play game;
    game.BridgeState.Set(kTopLeft, kTop, 2);
    const auto zoomed = [&](int from, int index) {
        game.CellSize = from;
        cmdzoom_Click(game, index);
        return game.CellSize;
    };
    EXPECT_EQ(zoomed(210, 0), 200);
    EXPECT_EQ(zoomed(650, 1), 700);
    EXPECT_EQ(zoomed(300, 1), 330);
    EXPECT_EQ(zoomed(205, 0), 200);
    EXPECT_EQ(zoomed(300, 2), 700) << "the fitted size, 1000, is brought down";
    game.FittedCellSize = 0;
    EXPECT_EQ(zoomed(500, 2), 300);
    EXPECT_EQ(game.BridgeState(kTop, kTopLeft), 2);
    game.pictures.visible = false;
    EXPECT_EQ(zoomed(300, 1), 300);
}

TEST(Layout, ANewBoardKeepsTheSizeThatResetGoesBackTo) {
    Play game;
    const int fitted = game.FittedCellSize;
    game.Rows = 25;
    game.Cols = 9;
    LayoutNewBoard(game);
    EXPECT_EQ(game.CellSize, 333);
    EXPECT_EQ(game.FittedCellSize, fitted);
    EXPECT_EQ(game.CellId(25, 9), 225);
    EXPECT_EQ(game.IslandGrid(1, 1), 0);
}

TEST(Drawing, ShowsIslandsBridgesAndLines) {
    TestGame game({Record({"3=2", "|..", "1.."})});
    ASSERT_EQ(game.Load(1), 0);
    RecordingSurface& picture = game.pictures.surface;
    const auto drawn = [&](bool solution) {
        picture.calls.clear();
        RedrawBoard(game, solution);
        return std::vector<int>{picture.Count("box"), picture.Count("line"), picture.Count("filledbox"),
                                picture.Count("print")};
    };
    EXPECT_EQ(drawn(false), (std::vector<int>{9, 2, 3, 3})) << "a thin line for each link";
    EXPECT_EQ(drawn(true), (std::vector<int>{9, 3, 3, 3})) << "a double and a single bridge";
    game.ShowLines = 0;
    EXPECT_EQ(drawn(false)[1], 0);
    game.BridgeState.Set(1, 3, 1);
    // Both orders of the pair: two strokes of the background, one of the bridge, and the islands at the ends.
    EXPECT_EQ(drawn(false), (std::vector<int>{9, 6, 7, 7}));
    game.NodeShape = 1;
    drawn(false);
    EXPECT_EQ(picture.Count("circle"), 7);
}

TEST(Drawing, AnIslandLiesAroundItsPosition) {
    TestGame game({Record({"12"})});
    ASSERT_EQ(game.Load(1), 0);
    game.CellSize = 250;
    LayoutBoard(game);
    game.NodeColour = 7;
    game.GivenColour = 0xFFFF;
    game.pictures.surface.calls.clear();
    DrawIsland(game, 1);
    // x 38 (37.5), y 144 (143.75): three quarters of a cell around it, the number centred.
    EXPECT_EQ(game.pictures.surface.calls,
              (std::vector<std::string>{"filledbox -55.75 50.25 131.75 237.75 7", "print 13 94 1 65535"}));
}

TEST(Play, ClicksCycleThroughOneTwoAndNone) {
    Play game;
    for (const int bridges : {1, 2, 0, 1}) {
        game.Join(kTopLeft, kTop);
        EXPECT_EQ(game.BridgeState(kTop, kTopLeft), bridges);
        EXPECT_EQ(game.AnchorRow, 0);
        EXPECT_FALSE(game.Line1.visible);
    }
    std::vector<std::string> undo;
    for (const UndoRecord& record : game.UndoList)
        undo.push_back(Text(record));
    EXPECT_EQ(undo, (std::vector<std::string>{" 1, 4, 0", " 1, 4, 2", " 1, 4, 1", " 1, 4, 0"}));
}

TEST(Play, OnlyDoubleBridgesAreJoined) {
    Play game;
    game.Join(kTopLeft, kTop);
    EXPECT_EQ(Text(game.ConnectedList[kTopLeft]), "");
    game.Join(kTopLeft, kTop);
    EXPECT_EQ(Text(game.ConnectedList[kTopLeft]) + Text(game.ConnectedList[kTop]), " 4, 1,");
    game.Join(kTopLeft, kTop);
    EXPECT_EQ(Text(game.ConnectedList[kTop]), "");
}

TEST(Play, ShiftLaysTwoAndTheRightButtonRemoves) {
    Play game;
    game.Click(kTopLeft);
    game.Release(kTop, MouseButton::Left, true);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 2);
    EXPECT_EQ(game.AnchorRow, 0) << "the click that follows must not select";
    game.Click(kTopLeft);
    game.Release(kBottomRight, MouseButton::Right, false);
    EXPECT_EQ(game.UndoList.size(), 1U) << "not in line: nothing happens";
    game.Release(kTop, MouseButton::Right, false);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 0);
    EXPECT_EQ(Text(game.UndoList.front()), " 1, 4, 2");
    game.Click(kTopLeft);
    game.Release(kTop, MouseButton::Right, true);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 2) << "Shift comes before the button";
}

TEST(Play, WhatIsNoPairChangesNothing) {
    Play game;
    game.Release(kTop, MouseButton::Left, true);
    EXPECT_EQ(Text(game.UndoList.front()), " 0, 4, 0");
    game.Join(kTopLeft, kBottomRight);
    EXPECT_EQ(game.BridgeState(kTopLeft, kBottomRight), 0);
    EXPECT_EQ(game.UndoList.size(), 2U) << "a refused move is recorded";
    game.Click(kTopLeft);
    game.Release(kTopLeft, MouseButton::Left, true);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTopLeft), 0);
    game.Join(kTopLeft, kTopLeft);
    EXPECT_EQ(game.AnchorRow, 0);
    game.Join(kTopLeft, 20);
    EXPECT_EQ(game.AnchorRow, 0) << "water drops the selection";
    // Over an island between the ends: the board takes it.
    game.Join(kTopLeft, kTopRight);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTopRight), 1);
}

TEST(Play, TheRubberBandFollowsAndAClickBesideTheBoardDropsTheSelection) {
    Play game;
    game.Click(kTopLeft);
    EXPECT_TRUE(game.Line1.visible);
    Picture1_MouseMove(game, false, {1000, 1100}, {});
    EXPECT_EQ(game.Line1.x2 + game.Line1.y2, 2100);
    EXPECT_EQ(game.Line1.x1, game.IslandX[kTopLeft]);
    Picture5_MouseUp(game);
    EXPECT_EQ(game.AnchorRow, -1);
    game.Join(kTop, kTopRight);
    EXPECT_EQ(game.BridgeState(kTop, kTopRight), 1);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 0);
}

TEST(Play, ACellReachesHalfACellAroundItsIsland) {
    Play game;
    const double half = game.CellSize / 2.0;
    const Point centre = game.At(kTop);
    EXPECT_EQ(CellUnder(game, {centre.x - half + 1, centre.y + half - 1}), (CellPlace{1, 4}));
    EXPECT_EQ(CellUnder(game, {centre.x - half - 1, centre.y}), (CellPlace{1, 3}));
    EXPECT_EQ(CellUnder(game, {centre.x, centre.y - half - 1}), (CellPlace{0, 4}));
    CellUnder(game, {1e300, -1e300});
}

TEST(Play, ALeftDragMovesTheBoard) {
    Play game;
    const double left = game.Picture1.left;
    Picture1_MouseDown(game, MouseButton::Left, {left + 100, 500});
    Picture1_MouseMove(game, true, {100, 100}, {left + 400, 500});
    EXPECT_NEAR(game.Picture1.left, left + 300, 0.5);
    game.BusyFlag = YesValue;
    Picture1_MouseDown(game, MouseButton::Left, {0, 0});
    Picture1_MouseMove(game, true, {100, 100}, {9999, 9999});
    EXPECT_NEAR(game.Picture1.left, left + 300, 0.5) << "a job holds the board";
}

TEST(Play, DuringAJobTheBoardTakesNoMoves) {
    Play game;
    game.Click(kTopLeft);
    game.BusyFlag = YesValue;
    game.Click(kTop);
    game.Release(kTop, MouseButton::Left, true);
    EXPECT_TRUE(game.UndoList.empty());
}

TEST(Undo, TakesMovesBackOneByOne) {
    Play game;
    game.Join(kTopLeft, kTop);
    game.Join(kTopLeft, kTop);
    game.Join(kTopLeft, kBottomRight);
    const int expected[] = {2, 1, 0, 0};
    for (const int bridges : expected) {
        cmdundo_Click(game);
        EXPECT_EQ(game.BridgeState(kTopLeft, kTop), bridges);
    }
    EXPECT_TRUE(game.UndoList.empty());
}

TEST(Check, FramesTheFirstWrongIslandForASecond) {
    Play game;
    game.Join(kTopLeft, kBottomLeft);
    game.Join(kTopLeft, kTop);
    cmdverify_Click(game);
    EXPECT_TRUE(game.Shape1.visible);
    EXPECT_EQ(game.Shape1.frame.left, game.IslandX[kTop] - game.HalfCell);
    EXPECT_EQ(game.Shape1.frame.width, game.CellSize);
    EXPECT_TRUE(game.pictures.timerEnabled);
    EXPECT_EQ(game.window.texts[Control::pb], "Not done yet");
    EXPECT_EQ(game.List1.Lines().back(), "01 04 003 links=01");
    Timer1_Timer(game);
    EXPECT_FALSE(game.Shape1.visible || game.pictures.timerEnabled);
}

TEST(Check, CountsBridgesAndNothingElse) {
    // Four islands whose double bridges cross in the middle, two groups.
    TestGame game({Record({".2.", "2.2", ".2."})});
    ASSERT_EQ(game.Load(1), 0);
    game.BridgeState.Set(2, 8, 2);
    game.BridgeState.Set(4, 6, 2);
    game.prompts.Expect("All Done!", "vbhappy+vbok", 1);
    cmdverify_Click(game);
    EXPECT_EQ(game.events.count, 1);
}

TEST(ViewSolution, IsDrawnWhateverTheOptionAndLeavesIt) {
    TestGame game({Record({"1-1"})});
    ASSERT_EQ(game.Load(1), 0);
    game.ShowLines = 0;
    game.pictures.surface.calls.clear();
    cmdviewcol_Press(game);
    EXPECT_EQ(game.pictures.surface.Count("line"), 1);
    EXPECT_EQ(game.ShowLines, 0);
    game.pictures.surface.calls.clear();
    cmdviewcol_Release(game);
    EXPECT_EQ(game.pictures.surface.Count("line"), 0);
}

TEST(Reset, AsksAndClearsTheBridges) {
    Play game;
    game.Join(kTopLeft, kTop);
    game.prompts.Expect("Reset?", "vbYesNo", 7);
    mnupuzreset_Click(game);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 1);
    game.prompts.Expect("Reset?", "vbYesNo", 6);
    mnupuzreset_Click(game);
    EXPECT_EQ(game.BridgeState(kTopLeft, kTop), 0);
    EXPECT_TRUE(game.UndoList.empty());
}

}  // namespace
}  // namespace tidewalk::test
