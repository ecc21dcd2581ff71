// SPDX-License-Identifier: MIT
// Playing: with the mouse, with the keyboard, and the commands on the board.
#include <random>
#include <set>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/show_board.h"
#include "program/escape.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

using enum BoardKey;

/// Islands in the corners of a board and one in the middle of its upper side.
const Lines kCorners{"2..3..2", ".......", ".......", ".......", ".......", ".......", "2.....2"};
constexpr CellNumber kTopLeft = 1;
constexpr CellNumber kTop = 4;
constexpr CellNumber kTopRight = 7;
constexpr CellNumber kWater = 20;
constexpr CellNumber kBottomLeft = 43;
constexpr CellNumber kBottomRight = 49;

const Lines kField{"1.2..", "..3.4", ".....", ".5...", "....6"};

/// A game on one puzzle, played as a window would.
struct Play : TestGame {
    explicit Play(const std::string& record) : TestGame({record}) { Load(1); }
    explicit Play(const Lines& rows = kCorners) : Play(Record(rows)) {}

    void Press(CellNumber id, MouseButton button, bool shift = false) {
        const Point point = board.At(id);
        Run(Picture1_MouseMove, false, point, point);
        Run(Picture1_MouseDown, button, point);
        Run(Picture1_MouseUp, button, shift, point);
        if (button == MouseButton::Left) Run(Picture1_Click);
    }
    void Click(CellNumber id) { Press(id, MouseButton::Left); }
    void Join(CellNumber a, CellNumber b) { Click(a), Click(b); }
    void ShiftJoin(CellNumber a, CellNumber b) { Click(a), Press(b, MouseButton::Left, true); }
    void RightJoin(CellNumber a, CellNumber b, bool shift = false) { Click(a), Press(b, MouseButton::Right, shift); }
    void Keys(std::initializer_list<BoardKey> keys) {
        for (const BoardKey key : keys)
            Run(Picture1_KeyDown, key);
    }

    int Bridges(CellNumber a, CellNumber b) const { return board.BridgeState(a, b); }
    std::string UndoLines() const {
        std::string lines;
        for (const UndoRecord& record : board.history.UndoList())
            lines += Text(record) + ";";
        return lines;
    }
    int NumberAtFocus() const { return board.puzzle.IslandGrid(board.FocusRow, board.FocusCol); }
};

TEST(Mouse, ClicksCycleThroughOneTwoAndNone) {
    Play game;
    for (const int bridges : {1, 2, 0, 1}) {
        game.Join(kTopLeft, kTop);
        EXPECT_EQ(game.Bridges(kTop, kTopLeft), bridges);
        EXPECT_EQ(SelectedIsland(game.board), 0);
    }
    EXPECT_EQ(game.UndoLines(), " 1, 4, 0; 1, 4, 2; 1, 4, 1; 1, 4, 0;");
}

TEST(Mouse, ShiftLaysTwoAndTheRightButtonRemoves) {
    Play game;
    game.ShiftJoin(kTopLeft, kTop);
    EXPECT_EQ(game.Bridges(kTopLeft, kTop), 2);
    EXPECT_EQ(SelectedIsland(game.board), 0) << "the click that follows selects nothing";
    game.RightJoin(kTopLeft, kBottomRight);
    EXPECT_EQ(SelectedIsland(game.board), kTopLeft) << "not in line: nothing happens";
    game.Press(kTop, MouseButton::Right);
    EXPECT_EQ(game.Bridges(kTopLeft, kTop), 0);
    game.RightJoin(kTopLeft, kTop, true);
    EXPECT_EQ(game.Bridges(kTopLeft, kTop), 2) << "Shift comes before the button";
    game.RightJoin(kTopLeft, kBottomLeft);
    EXPECT_EQ(game.UndoLines(), " 1, 43, 0; 1, 4, 0; 1, 4, 2; 1, 4, 0;");
}

TEST(Mouse, WhatIsNoPairChangesNothing) {
    Play game;
    game.Press(kTop, MouseButton::Left, true);
    game.Press(kTop, MouseButton::Right);
    game.Join(kTopLeft, kBottomRight);
    game.ShiftJoin(kTopLeft, kTopLeft);
    game.Join(kTopLeft, kTopLeft);
    game.Join(kTopLeft, kWater);
    EXPECT_EQ(SelectedIsland(game.board), 0) << "water drops the selection";
    game.Press(kWater, MouseButton::Left, true);
    EXPECT_TRUE(game.board.BridgeState.InBothOrders().empty());
    EXPECT_EQ(game.UndoLines(), " 1, 1, 0; 1, 49, 0; 0, 4, 0;") << "moves that are refused are recorded";
    game.Join(kTopLeft, kTopRight);
    EXPECT_EQ(game.Bridges(kTopLeft, kTopRight), 1) << "over an island: the board takes it";
}

TEST(Mouse, TheRubberBandFollowsAndAClickBesideTheBoardDropsTheSelection) {
    Play game;
    game.Click(kTopLeft);
    EXPECT_EQ(game.board.Line1.from, game.board.At(kTopLeft));
    EXPECT_EQ(game.board.Line1.to, game.board.At(kTopLeft));
    game.Run(Picture1_MouseMove, false, Point{1000, 1100}, Point{});
    game.Run(Picture1_MouseMove, false, Point{-5000, 1100}, Point{});
    EXPECT_EQ(game.board.Line1.to, (Point{1000, 1100})) << "as long as it is over the board";
    game.Run(Picture5_MouseUp);
    EXPECT_EQ(game.board.AnchorRow + game.board.AnchorCol + game.board.HoverRow + game.board.HoverCol, -4);
    EXPECT_TRUE(game.board.Line1.visible) << "until the next click";
    game.Join(kTop, kTopRight);
    EXPECT_EQ(game.UndoLines(), " 4, 7, 0;");
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
    const Puzzle puzzle = PuzzleFrom(kField);
    const std::map<int, CellNumber> islands{{1, 1}, {2, 3}, {3, 8}, {4, 10}, {5, 17}, {6, 25}};
    const auto from = [&](int number, BoardKey key) {
        return puzzle.IslandAt(IslandTowards(puzzle, key, islands.at(number)));
    };
    EXPECT_EQ(from(1, Right), 2);
    EXPECT_EQ(from(1, Down), 3) << "nothing below it: the nearest one further down";
    EXPECT_EQ(from(4, Down), 6) << "in line, though 5 is no further away";
    EXPECT_EQ(from(3, Left), 1) << "as far as 5, but less aside";
    EXPECT_EQ(from(2, Up), 2) << "the board ends there";
    EXPECT_EQ(from(5, Up), 3);
    EXPECT_EQ(from(6, Left), 5);
}

TEST(Keys, ArrowsLeadToEveryIsland) {
    const Puzzle puzzle = *ParsePuzzleRecord(kSmallPuzzle);
    Lines way{"3"};
    std::set<CellNumber> reached{3};
    for (std::size_t at = 0; at < way.size(); ++at) {
        for (const BoardKey key : {Left, Right, Up, Down}) {
            const CellNumber next = IslandTowards(puzzle, key, std::stoi(way[at]));
            if (reached.insert(next).second) way.push_back(std::to_string(next));
        }
    }
    EXPECT_EQ(static_cast<int>(reached.size()), puzzle.IslandCount());
}

TEST(Keys, TheFirstKeyOnlyShowsWhereTheFocusIs) {
    Play game(kField);
    game.Keys({Lay});
    EXPECT_EQ(game.NumberAtFocus() * 10 + SelectedIsland(game.board), 10);
    EXPECT_TRUE(game.board.focusShows);
    game.Keys({Last});
    EXPECT_EQ(game.NumberAtFocus(), 6);
    game.Keys({Next, Previous, Previous});
    EXPECT_EQ(game.NumberAtFocus(), 4);
    game.Keys({First, Previous, Next});
    game.Run(Picture1_GotFocus);
    EXPECT_EQ(game.NumberAtFocus(), 2) << "the one that was last played on";
    game.Load(1);
    EXPECT_EQ(FocusedIsland(game.board), 0) << "another board, another focus";
    game.Click(8);
    game.board.FocusRow = game.board.FocusCol = 0;
    game.Run(Picture1_GotFocus);
    EXPECT_EQ(FocusedIsland(game.board), 8) << "the selected one";
}

TEST(Keys, DoWhatTheMouseDoes) {
    Play game(kField);
    game.Run(Picture1_GotFocus);
    for (const int bridges : {1, 2, 0}) {
        game.Keys({First, Lay, Right});
        EXPECT_EQ(game.board.Line1.to, game.board.At(3));
        game.Keys({Lay});
        EXPECT_EQ(game.Bridges(1, 3), bridges);
    }
    game.Keys({Lay, Lay, Lay, LayDouble, Remove});
    EXPECT_EQ(game.board.history.UndoList().size(), 3U) << "an island is no pair with itself";
    game.Keys({Left, LayDouble});
    EXPECT_EQ(game.Bridges(1, 3), 2);
    game.Keys({Lay, Right, Remove, Remove, LayDouble});
    EXPECT_EQ(game.Bridges(1, 3), 0);
    EXPECT_EQ(game.board.history.UndoList().size(), 5U) << "nothing is selected in the end";
    game.Click(8);
    EXPECT_FALSE(game.board.focusShows);
    game.Keys({Right, Lay});
    EXPECT_EQ(game.Bridges(8, 10), 1) << "they go on where the mouse was";
}

TEST(Keys, BringTheIslandWithTheFocusIntoView) {
    for (const bool wide : {true, false}) {
        Lines rows(wide ? 1 : 25, wide ? "1" + std::string(23, '.') + "1" : ".");
        if (!wide) rows.front() = rows.back() = "1";
        Play game(rows);
        game.world.container = {9000, 7000};
        game.Run(cmdzoom_Click, 2);
        const auto at = [&] {
            const Point point = game.board.At(FocusedIsland(game.board));
            const Frame& frame = game.board.layout.Picture1;
            return wide ? frame.left + point.x : frame.top + point.y;
        };
        game.board.layout.CellSize = 700;
        game.Run(cmdzoom_Click, 1);
        game.Keys({First});
        EXPECT_DOUBLE_EQ(at(), 420) << "six tenths of a cell from the border";
        game.Keys({wide ? Right : Down});
        EXPECT_DOUBLE_EQ(at(), (wide ? 9000 : 7000) - 420);
        game.Keys({Last});
        EXPECT_DOUBLE_EQ(at(), (wide ? 9000 : 7000) - 420) << "it shows already";
    }
}

TEST(Keys, EscapeLetsGoFirstAndCancelsThen) {
    Play game(kField);
    game.Keys({First, First, Lay});
    game.Run(can2_Click);
    EXPECT_EQ(SelectedIsland(game.board), 0);
    EXPECT_EQ(game.world.Seen(), "");
    game.Run(can2_Click);
    EXPECT_EQ(game.world.Seen(), "status: ");
}

TEST(Undo, TakesMovesBackOneByOne) {
    Play game;
    for (const CellNumber other : {kTop, kTop, kBottomRight})
        game.Join(kTopLeft, other);
    for (const int bridges : {2, 1, 0, 0}) {
        game.Run(cmdundo_Click);
        EXPECT_EQ(game.Bridges(kTopLeft, kTop), bridges);
    }
    EXPECT_EQ(game.board.history.Revision(), 1U + 3 + 3) << "a load, three moves and three steps back";
    EXPECT_EQ(ParseUndoRecord(" 12, 15, 1"), (UndoRecord{12, 15, 1}));
    for (const char* text : {"12, 15, 1", " 12, 15", " 12, 15, 3", " 626, 1, 0", " 1, 626, 0", " 1,-1, 0", ""})
        EXPECT_EQ(ParseUndoRecord(text), std::nullopt) << text;
}

TEST(Check, FramesTheFirstWrongIslandForASecond) {
    Play game;
    game.Join(kTopLeft, kBottomLeft);
    game.Join(kTopLeft, kTop);
    game.Run(cmdverify_Click);
    EXPECT_EQ(game.board.Shape1.cell, (CellPlace{1, 4}));
    EXPECT_EQ(game.world.Seen(), "status: Not done yet");
    EXPECT_EQ(game.List1.Lines(), (Lines{"01 01 002 links=02", "01 04 003 links=01"}));
    game.Run(Timer1_Timer);
    EXPECT_FALSE(game.board.Shape1.visible);
}

TEST(Check, CountsBridgesAndNothingElse) {
    // Four islands whose double bridges cross in the middle, two groups.
    Play game(Lines{".2.", "2.2", ".2."});
    game.ShiftJoin(2, 8);
    game.ShiftJoin(4, 6);
    game.world.Expect("All Done!", "vbhappy+vbok");
    game.Run(cmdverify_Click);
    EXPECT_EQ(game.world.Seen(), "box, events");
}

TEST(Zoom, StaysWithinItsLimitsAndKeepsTheBridges) {
    Play game;
    game.Join(kTopLeft, kTop);
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
    EXPECT_EQ(game.Bridges(kTop, kTopLeft), 1);
    game.world.visible = false;
    game.Run(cmdzoom_Click, 1);
    EXPECT_EQ(game.board.layout.CellSize, 300);
}

TEST(ViewSolution, ShowsForAsLongAsTheButtonIsHeld) {
    Play game(kSmallPuzzle);
    game.Run(cmdviewcol_Press);
    EXPECT_TRUE(game.ShowsSolution());
    game.Run(cmdviewcol_Release);
    EXPECT_FALSE(game.ShowsSolution());
}

TEST(Reset, AsksAndClearsTheBridges) {
    Play game;
    game.Join(kTopLeft, kTop);
    for (const int answer : {kNo, kYes}) {
        game.world.Expect("Reset?", "vbYesNo", answer);
        game.Run(mnupuzreset_Click);
        EXPECT_EQ(game.Bridges(kTopLeft, kTop), answer == kNo ? 1 : 0);
        EXPECT_EQ(game.world.Seen(), answer == kNo ? "box, events" : "box, events, number: 1, status: ");
    }
}

TEST(Play, WhateverIsDoneTheScreenShowsIt) {
    std::mt19937 random(7);
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    Play game(kSmallPuzzle);
    game.world.AnswerAll(kYes);
    for (int turn = 0; turn < 600 && !testing::Test::HasFailure(); ++turn) {
        const Link link = game.board.puzzle.LinkList[static_cast<std::size_t>(draw(10))];
        const CellNumber id = draw(5) == 0 ? 1 + draw(49) : draw(2) == 0 ? link.first : link.second;
        game.options.ShowFinished = turn / 200 % 2;
        const int what = draw(40);
        if (what == 0) game.Run(mnupuzreset_Click);
        if (what == 1) game.Run(Timer1_Timer);
        if (what == 2) game.Run(Picture5_MouseUp);
        if (what == 3) game.Run(cmdviewcol_Press);
        if (what == 4) game.Run(cmdviewcol_Release);
        if (what == 5 || what == 6) game.Run(cmdverify_Click);
        if (what == 7 || what == 8) game.Run(cmdzoom_Click, draw(3));
        if (what == 9 || what == 10) game.Run(cmdundo_Click);
        if (what > 10 && what < 20) game.Keys({static_cast<BoardKey>(draw(11))});
        if (what >= 20) game.Press(id, what < 36 ? MouseButton::Left : MouseButton::Right, what % 5 == 0);
    }
    EXPECT_GT(game.board.history.Revision(), 100U);
}

}  // namespace
}  // namespace tidewalk::test
