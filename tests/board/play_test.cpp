// SPDX-License-Identifier: MIT
// Playing: with the mouse, with the keyboard, and the commands on the board.
#include <set>
#include <sstream>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/place_bridge.h"
#include "board/show_board.h"
#include "program/escape.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// Islands in the corners of a board, 1, 7, 43 and 49, and one in the middle of its upper side, 4.
const Lines kCorners{"2..3..2", ".......", ".......", ".......", ".......", ".......", "2.....2"};
/// The islands 1, 3, 8, 10, 17 and 25.
const Lines kField{"1.2..", "..3.4", ".....", ".5...", "....6"};

/// A game on one puzzle, played as a window would.
struct Play : TestGame {
    explicit Play(const std::string& record) : TestGame({record}) { Load(1); }
    explicit Play(const Lines& rows = kCorners) : Play(Record(rows)) {}

    void Press(CellNumber id, MouseButton button, bool shift) {
        const Point point = board.At(id);
        Run(Picture1_MouseMove, false, point, point);
        Run(Picture1_MouseDown, button, point);
        Run(Picture1_MouseUp, button, shift, point);
        if (button == MouseButton::Left) Run(Picture1_Click);
    }

    /// Plays moves. With the mouse: "1" clicks that cell, "1-4" both; "=" stands for a click with Shift, "x" for the
    /// right button and "X" for both. With keys: ":" and a letter each for left, right, up, down, first, end, previous
    /// and next, "." to lay, "=" to lay two and "x" to remove. "u" is for undo.
    Play& operator<<(const std::string& moves) {
        std::istringstream all(moves);
        for (std::string move; all >> move;) {
            const std::size_t how = std::min(move.find_first_of("-=xX"), move.size());
            if (move[0] == ':') {
                for (const char key : move.substr(1))
                    Run(Picture1_KeyDown, static_cast<BoardKey>(std::string("lrudfepn.=x").find(key)));
            } else if (move == "u") {
                Run(cmdundo_Click);
            } else {
                const bool right = move[how] == 'x' || move[how] == 'X';
                const bool shift = move[how] == '=' || move[how] == 'X';
                if (how > 0) Press(std::stoi(move), MouseButton::Left, false);
                if (how == move.size()) continue;
                Press(std::stoi(move.substr(how + 1)), right ? MouseButton::Right : MouseButton::Left, shift);
            }
        }
        return *this;
    }

    /// The bridges, the island with the focus, the selected one and the moves: "1-4*2 #4 @1; 1, 4, 0".
    std::string State() const {
        std::string all;
        for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders()) {
            if (a < b) all += std::to_string(a) + "-" + std::to_string(b) + "*" + std::to_string(bridges) + " ";
        }
        if (board.focusShows) all += "#" + std::to_string(FocusedIsland(board)) + " ";
        if (SelectedIsland(board) != 0) all += "@" + std::to_string(SelectedIsland(board));
        for (const UndoRecord& record : board.history.UndoList())
            all += ";" + Text(record);
        return all;
    }
};

std::string After(const std::string& moves, const Lines& rows = kCorners) {
    return (Play(rows) << moves).State();
}

TEST(Mouse, ClicksCycleShiftLaysTwoAndTheRightButtonRemoves) {
    EXPECT_EQ(After("1-4"), "1-4*1 ; 1, 4, 0");
    EXPECT_EQ(After("1-4 4-1"), "1-4*2 ; 4, 1, 1; 1, 4, 0");
    EXPECT_EQ(After("1-4 1-4 1-4 "), "; 1, 4, 2; 1, 4, 1; 1, 4, 0");
    EXPECT_EQ(After("1-7"), "1-7*1 ; 1, 7, 0") << "over an island: the board takes it";
    EXPECT_EQ(After("1=4"), "1-4*2 ; 1, 4, 0") << "the click that follows selects nothing";
    EXPECT_EQ(After("1-4 1=4"), "1-4*2 ; 1, 4, 1; 1, 4, 0");
    EXPECT_EQ(After("1=4 1=4"), "1-4*2 ; 1, 4, 2; 1, 4, 0");
    EXPECT_EQ(After("1=4 1x4"), "; 1, 4, 2; 1, 4, 0");
    EXPECT_EQ(After("1X4"), "1-4*2 ; 1, 4, 0") << "Shift comes before the button";
    EXPECT_EQ(After("1x43"), "; 1, 43, 0");
    EXPECT_EQ(After("1x49"), "@1") << "not in line: nothing happens";
}

TEST(Mouse, WhatIsNoPairChangesNothing) {
    EXPECT_EQ(After("=4"), "; 0, 4, 0") << "a move that is refused is recorded";
    EXPECT_EQ(After("1-49"), "; 1, 49, 0");
    EXPECT_EQ(After("1=1"), "; 1, 1, 0");
    EXPECT_EQ(After("x4 =20 x20 1-1 1-20 20"), "") << "water drops the selection, and so does the island itself";
    Play game;
    PlaceBridge(game.board, PlaceMode::Double, 1, 2, 1);
    EXPECT_EQ(game.State(), "");
}

TEST(Mouse, TheRubberBandFollowsAndAClickBesideTheBoardDropsTheSelection) {
    Play game;
    game << "1";
    EXPECT_EQ(game.board.Line1.from, game.board.At(1));
    EXPECT_EQ(game.board.Line1.to, game.board.At(1));
    game.Run(Picture1_MouseMove, false, Point{1000, 1100}, Point{});
    for (const Point& beside : {Point{-5000, 1100}, {1000, -5000}})
        game.Run(Picture1_MouseMove, false, beside, Point{});
    EXPECT_EQ(game.board.Line1.to, (Point{1000, 1100})) << "as long as it is over the board";
    game.Run(Picture5_MouseUp);
    EXPECT_EQ(game.board.AnchorRow + game.board.AnchorCol + game.board.HoverRow + game.board.HoverCol, -4);
    EXPECT_FALSE(game.board.Line1.visible);
    game << "4-7 1";
    game.Run(Picture1_MouseMove, false, game.board.At(7), Point{});
    game.Run(Picture1_MouseUp, MouseButton::Left, false, Point{-50, 100});
    game.Run(Picture1_Click);
    EXPECT_EQ(game.State(), "4-7*1 ; 4, 7, 0") << "no bridge to the last island under the pointer";
}

TEST(Mouse, ALeftDragMovesTheBoardAndNoOtherDoes) {
    Play game;
    const Frame before = game.board.layout.Picture1;
    game.Run(Picture1_MouseDown, MouseButton::Right, Point{0, 0});
    game.Run(Picture1_MouseMove, true, Point{100, 100}, Point{50, 60});
    game.Run(Picture1_MouseDown, MouseButton::Left, Point{before.left + 100, before.top + 200});
    game.Run(Picture1_MouseMove, false, Point{100, 100}, Point{1, 1});
    EXPECT_EQ(game.board.layout.Picture1, before);
    game.Run(Picture1_MouseMove, true, Point{100, 100}, Point{before.left + 400, before.top + 250});
    EXPECT_NEAR(game.board.layout.Picture1.left, before.left + 300, 0.5);
    EXPECT_NEAR(game.board.layout.Picture1.top, before.top + 50, 0.5);
    game.Run(static_cast<void (*)(Game&)>(CentreBoard));
    EXPECT_EQ(game.board.layout.Picture1, before);
}

TEST(Keys, ArrowsGoToTheNearestInLineAndElseToTheNearestOnThatSide) {
    const auto towards = [](CellNumber id, BoardKey key) { return IslandTowards(PuzzleFrom(kField), key, id); };
    EXPECT_EQ(towards(1, BoardKey::Right), 3);
    EXPECT_EQ(towards(1, BoardKey::Down), 8) << "nothing below it: the nearest one further down";
    EXPECT_EQ(towards(10, BoardKey::Down), 25) << "in line, though 17 is no further away";
    EXPECT_EQ(towards(8, BoardKey::Left), 1) << "as far as 17, but less aside";
    EXPECT_EQ(towards(3, BoardKey::Up), 3) << "the board ends there";
    EXPECT_EQ(towards(17, BoardKey::Up), 8);
    EXPECT_EQ(towards(25, BoardKey::Left), 17);
    std::set<CellNumber> reached{1};
    for (std::size_t before = 0; before < reached.size();) {
        before = reached.size();
        for (const CellNumber id : std::set(reached)) {
            for (const BoardKey key : {BoardKey::Left, BoardKey::Right, BoardKey::Up, BoardKey::Down})
                reached.insert(towards(id, key));
        }
    }
    EXPECT_EQ(reached, (std::set<CellNumber>{1, 3, 8, 10, 17, 25})) << "they lead to every island";
}

TEST(Keys, DoWhatTheMouseDoes) {
    EXPECT_EQ(After(":.", kField), "#1 ") << "the first one only shows where the focus is";
    EXPECT_EQ(After(":.e", kField), "#25 ");
    EXPECT_EQ(After(":.ef", kField), "#1 ");
    for (const char* keys : {":.", ":.ef"})
        EXPECT_EQ(After(keys, {".1.1"}), "#2 ");
    EXPECT_EQ(After(":.enpp", kField), "#10 ");
    EXPECT_EQ(After(":.efpn", kField), "#3 ");
    EXPECT_EQ(After(":..r", kField), "#3 @1");
    EXPECT_EQ(After(":..r.", kField), "1-3*1 #3 ; 1, 3, 0");
    EXPECT_EQ(After(":..r=", kField), "1-3*2 #3 ; 1, 3, 0");
    EXPECT_EQ(After(":..r=.lx", kField), "#1 ; 3, 1, 2; 1, 3, 0");
    EXPECT_EQ(After(":.x=", kField), "#1 ") << "nothing is selected";
    EXPECT_EQ(After(":..=x", kField), "#1 @1") << "an island is no pair with itself";
    EXPECT_EQ(After(":.e 8", kField), "@8") << "the mouse hides the focus";
    EXPECT_EQ(After("8 :r.", kField), "8-10*1 #10 ; 8, 10, 0") << "the keys go on where the mouse was";
    Play game(kField);
    game << ":..r";
    EXPECT_EQ(game.board.Line1.to, game.board.At(3));
    game.Run(Picture1_GotFocus);
    EXPECT_EQ(game.State(), "#3 @1") << "the one that was last played on";
    game.board.FocusRow = game.board.FocusCol = 0;
    game.Run(Picture1_GotFocus);
    EXPECT_EQ(game.State(), "#1 @1") << "the selected one";
    game.Load(1);
    EXPECT_EQ(game.State(), "#0 ") << "another board, another focus";
}

TEST(Keys, BringTheIslandWithTheFocusIntoView) {
    for (const bool wide : {true, false}) {
        Lines rows(wide ? 1 : 25, wide ? "1" + std::string(23, '.') + "1" : ".");
        if (!wide) rows.front() = rows.back() = "1";
        Play game(rows);
        game.world.container = {9000, 7000};
        game.board.layout.CellSize = 700;
        game.Run(cmdzoom_Click, 1);
        const auto at = [&] {
            const Point point = game.board.At(FocusedIsland(game.board));
            const Frame& frame = game.board.layout.Picture1;
            return wide ? frame.left + point.x : frame.top + point.y;
        };
        game << ":f";
        EXPECT_DOUBLE_EQ(at(), 420) << "six tenths of a cell from the border";
        game << (wide ? ":r" : ":d");
        EXPECT_DOUBLE_EQ(at(), (wide ? 9000 : 7000) - 420);
        game << ":e";
        EXPECT_DOUBLE_EQ(at(), (wide ? 9000 : 7000) - 420) << "it shows already";
        game.world.container = {600, 600};
        game << ":f";
        EXPECT_DOUBLE_EQ(at(), 300) << "there is no room for a margin";
    }
}

TEST(Keys, EscapeLetsGoFirstAndCancelsThen) {
    Play game(kField);
    game << "1";
    for (const char* seen : {"", "status: "}) {
        game.Run(can2_Click);
        EXPECT_EQ(game.State(), "");
        EXPECT_EQ(game.world.Seen(), seen);
    }
}

TEST(Undo, TakesMovesBackOneByOne) {
    EXPECT_EQ(After("1-4 1-4 1-49 u"), "1-4*2 ; 1, 4, 1; 1, 4, 0") << "a refused move";
    EXPECT_EQ(After("1-4 1-4 u"), "1-4*1 ; 1, 4, 0");
    EXPECT_EQ(After("1-4 1x4 u"), "1-4*1 ; 1, 4, 0");
    EXPECT_EQ(After("1-4 u u"), "");
    Play game;
    EXPECT_EQ((game << "1-4 u").board.history.Revision(), 3U) << "a load, a move and a step back";
    EXPECT_EQ(ParseUndoRecord(" 12, 15, 1"), (UndoRecord{12, 15, 1}));
    for (const char* text : {"12, 15, 1", " 12, 15", " 12, 15, 3", " 626, 1, 0", " 1, 626, 0", " 1,-1, 0", ""})
        EXPECT_EQ(ParseUndoRecord(text), std::nullopt) << text;
}

TEST(Check, FramesTheFirstWrongIslandForASecond) {
    Play game;
    (game << "1-43 1-4").Run(cmdverify_Click);
    EXPECT_EQ(game.board.Shape1.cell, (CellPlace{1, 4}));
    EXPECT_EQ(game.world.Status(), "Not done yet");
    EXPECT_EQ(game.List1.Lines(), (Lines{"01 01 002 links=02", "01 04 003 links=01"}));
    game.Run(Timer1_Timer);
    EXPECT_FALSE(game.board.Shape1.visible);
    game << "1-4";
    EXPECT_EQ(game.world.Status(), "") << "it was said of the board before the move";
    // Four islands whose double bridges cross in the middle, two groups: only bridges are counted.
    Play crossed(Lines{".2.", "2.2", ".2."});
    crossed << "2=8 4=6";
    crossed.world.Seen();
    crossed.world.Expect("All Done!", "vbhappy+vbok");
    crossed.Run(cmdverify_Click);
    EXPECT_EQ(crossed.world.Seen(), "box, events");
}

TEST(Zoom, StaysWithinItsLimitsAndKeepsTheBridges) {
    Play game;
    game << "1-4";
    const auto zoomed = [&](int from, int index) {
        game.board.layout.CellSize = from;
        game.Run(cmdzoom_Click, index);
        return game.board.layout.CellSize;
    };
    EXPECT_EQ(zoomed(650, 1), 700);
    EXPECT_EQ(zoomed(300, 1), 330);
    EXPECT_EQ(zoomed(305, 0), 274) << "274.5";
    EXPECT_EQ(zoomed(205, 0), 200);
    EXPECT_EQ(zoomed(300, 2), 700) << "the fitted size, 1000, is brought down";
    game.board.FittedCellSize = 0;
    EXPECT_EQ(zoomed(500, 2), 300);
    EXPECT_EQ(game.State(), "1-4*1 ; 1, 4, 0");
    game.board.HoverRow = 1;
    game.board.HoverCol = 4;
    game.Run(Picture1_Click);
    game.Run(Picture1_MouseMove, false, game.board.At(7), Point{});
    EXPECT_EQ(zoomed(game.board.layout.CellSize, 0), 270);
    EXPECT_NEAR(game.board.Line1.to.x, game.board.At(7).x, 0.1) << "the band stays over its cells";
    EXPECT_EQ(zoomed(300, 1), 330);
    EXPECT_EQ(game.board.Line1.from, game.board.At(4)) << "the ring follows";
    game.world.visible = false;
    game.Run(cmdzoom_Click, 1);
    EXPECT_EQ(game.board.layout.CellSize, 330);
}

TEST(BoardCommands, ShowTheSolutionWhileHeldAndResetWhenWanted) {
    Play game(kSmallPuzzle);
    game << "3-7";
    game.Run(cmdviewcol_Press);
    EXPECT_TRUE(game.ShowsSolution());
    game.Run(cmdviewcol_Release);
    for (const char* move : {"", "3=7", "u", "3-7", "u"})
        EXPECT_FALSE((game << move).ShowsSolution()) << move;
    game.world.Seen();
    for (const int answer : {kNo, kYes}) {
        game.world.Expect("Reset?", "vbYesNo", answer);
        game.Run(mnupuzreset_Click);
        EXPECT_EQ(game.State(), answer == kNo ? "3-7*1 ; 3, 7, 0" : "");
        EXPECT_EQ(game.world.Seen(), answer == kNo ? "box, events" : "box, events, number: 1, status: ");
    }
}

}  // namespace
}  // namespace tidewalk::test
