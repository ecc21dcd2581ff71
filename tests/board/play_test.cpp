// SPDX-License-Identifier: MIT
// Playing: with the mouse, with the keyboard, and the commands on the board.
#include <random>
#include <set>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/history_lines.h"
#include "board/keep_play.h"
#include "board/magnify.h"
#include "board/show_board.h"
#include "game/job.h"
#include "model/load_puzzle.h"
#include "program/escape.h"
#include "support/play.h"

namespace tidewalk::test {
namespace {

/// The islands 1, 3, 8, 10, 17 and 25.
const Lines kField{"1.2..", "..3.4", ".....", ".5...", "....6"};

std::string After(const std::string& moves, const Lines& rows = kCorners) {
    return (Play(rows) << moves).State();
}

TEST(Mouse, ClicksCycleShiftLaysTwoAndTheRightButtonRemoves) {
    EXPECT_EQ(After("1-4"), "1-4*1 ; 1, 4, 0");
    EXPECT_EQ(After("1-4 4-1"), "1-4*2 ; 4, 1, 1; 1, 4, 0");
    EXPECT_EQ(After("1-4 1-4 1-4"), "; 1, 4, 2; 1, 4, 1; 1, 4, 0");
    EXPECT_EQ(After("1-7"), "1-7*1 ; 1, 7, 0") << "over an island: the board takes it";
    EXPECT_EQ(After("1=4"), "1-4*2 ; 1, 4, 0") << "the click that follows selects nothing";
    EXPECT_EQ(After("1-4 1=4 1=4"), "1-4*2 ; 1, 4, 2; 1, 4, 1; 1, 4, 0");
    EXPECT_EQ(After("1=4 1x4"), "; 1, 4, 2; 1, 4, 0");
    EXPECT_EQ(After("1X4"), "1-4*2 ; 1, 4, 0") << "Shift comes before the button";
    EXPECT_EQ(After("1-7 1x7"), "; 1, 7, 1; 1, 7, 0") << "islands that do not see each other take no mark";
    EXPECT_EQ(After("1x49"), "@1") << "not in line: nothing happens";
}

TEST(Mouse, WhatIsNoPairChangesNothing) {
    EXPECT_EQ(After("=4"), "; 0, 4, 0") << "a move that is refused is recorded";
    EXPECT_EQ(After("1=1"), "; 1, 1, 0");
    EXPECT_EQ(After("x4 =20 x20 1-1 1-20 20"), "") << "water drops the selection, and so does the island itself";
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
    const Point water = game.board.At(9);
    game.Run(Picture1_MouseDown, MouseButton::Right, water, Point{0, 0});
    game.Run(Picture1_MouseMove, true, water, Point{50, 60});
    game.Run(Picture1_MouseDown, MouseButton::Left, water, Point{before.left + 100, before.top + 200});
    game.Run(Picture1_MouseMove, false, water, Point{1, 1});
    EXPECT_EQ(game.board.layout.Picture1, before);
    game.Run(Picture1_MouseMove, true, water, Point{before.left + 400, before.top + 250});
    EXPECT_NEAR(game.board.layout.Picture1.left, before.left + 300, 0.5);
    EXPECT_NEAR(game.board.layout.Picture1.top, before.top + 50, 0.5);
    game.Run(Picture5_Resize);
    EXPECT_EQ(game.board.layout.Picture1, before);
}

TEST(Mouse, ADragThatMovesTheBoardIsNoClickOnTheBridgeWhereItBegins) {
    Play game;
    game << "1-4";
    const Point bridge = game.board.At(2);
    for (const auto& [distance, bridges] : {std::pair{2000.0, 1}, {1.0, 2}}) {
        game.Run(Picture1_MouseDown, MouseButton::Left, bridge, bridge);
        game.Run(Picture1_MouseMove, true, bridge, Point{bridge.x + distance, bridge.y});
        game.Run(Picture1_MouseUp, MouseButton::Left, false, bridge);
        game.Run(Picture1_Click);
        EXPECT_EQ(game.board.BridgeState(1, 4), bridges);
    }
}

TEST(Mouse, ADragBetweenIslandsLaysAndNeverMovesTheBoard) {
    Play game;
    const Frame before = game.board.layout.Picture1;
    EXPECT_EQ((game << "1>4").State(), "1-4*1 ; 1, 4, 0");
    EXPECT_EQ((game << "4>1").State(), "1-4*2 ; 4, 1, 1; 1, 4, 0");
    EXPECT_EQ(game.board.layout.Picture1, before);
    game << "7";
    game.Drag(1, game.board.At(20));
    EXPECT_EQ(game.State(), "1-4*2 ; 4, 1, 1; 1, 4, 0") << "on water it ends, and nothing is selected";
    game.Drag(1, {game.board.At(1).x + game.world.DragDistance() / 2, game.board.At(1).y});
    EXPECT_EQ(game.State(), "1-4*2 @1; 4, 1, 1; 1, 4, 0") << "a hand that shakes clicks";
    game.Draw(7, game.board.At(4));
    EXPECT_EQ(game.board.Line1.to, game.board.At(4)) << "the band follows";
    game.Run(can2_Click);
    game.Run(Picture1_MouseUp, MouseButton::Left, false, game.board.At(4));
    game.Run(Picture1_Click);
    EXPECT_EQ(game.State(), "1-4*2 ; 4, 1, 1; 1, 4, 0") << "Escape lets go, and the release is no click";
    game.Draw(7, game.board.At(4));
    const Job job(game, "AutoSolve");
    game.Run(Picture1_MouseUp, MouseButton::Left, false, game.board.At(4));
    EXPECT_EQ(game.State(), "1-4*2 ; 4, 1, 1; 1, 4, 0") << "a job has come in between";
}

TEST(Mouse, ASecondButtonCallsADragOffAndDoesNothingElse) {
    Play game;
    game << "1-4";
    const Point onBridge = game.board.At(3);
    game.Draw(1, onBridge);
    game.Run(Picture1_MouseDown, MouseButton::Right, onBridge, onBridge);
    game.Run(Picture1_MouseUp, MouseButton::Right, false, onBridge);
    game.Run(Picture1_MouseUp, MouseButton::Left, false, onBridge);
    game.Run(Picture1_Click);
    EXPECT_EQ(game.State(), "1-4*1 ; 1, 4, 0");
}

TEST(Mouse, AClickOnABridgeGoesOnWithIt) {
    EXPECT_EQ(After("1-4 2 3"), "; 1, 4, 2; 1, 4, 1; 1, 4, 0");
    EXPECT_EQ(After("1=4 x2"), "; 1, 4, 2; 1, 4, 0") << "the right button takes it away";
    EXPECT_EQ(After("1-4 7 2"), "1-4*1 ; 1, 4, 0") << "while an island is selected water lets go of it";
    EXPECT_EQ(After("1-43 15"), "1-43*2 ; 1, 43, 1; 1, 43, 0");
}

TEST(Marks, AreMadeAndTakenByTheRightButtonAndGiveWayToBridges) {
    EXPECT_EQ(After("1x43"), "1x43 ; 1, 43,-1");
    EXPECT_EQ(After("1x43 43x1"), "; 43, 1,-2; 1, 43,-1");
    EXPECT_EQ(After("1x43 1-43"), "1-43*1 ; 1, 43,-2; 1, 43,-1");
    EXPECT_EQ(After("1-43 1x43"), "; 1, 43, 1; 1, 43, 0") << "a bridge goes first, without a mark";
}

TEST(History, AgreesWithAListOfMomentsThroughThousandsOfMoves) {
    Play game(kField);
    const auto now = [&] {
        const std::string state = game.State();
        return state.substr(0, state.find(';'));
    };
    std::mt19937 random(3);
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const int islands[] = {1, 3, 8, 10, 17, 25};
    std::vector<std::string> moments{now()};
    std::size_t at = 0;
    std::size_t longest = 0;
    std::set<std::size_t> checkpoints;
    for (int step = 0; step < 4000; ++step) {
        const int what = draw(12);
        if (what < 7) {
            const int from = islands[draw(6)];
            const int to = islands[draw(6)];
            if (from == to) continue;
            const std::size_t before = game.board.history.UndoList().size();
            game << std::to_string(from) + "-=x"[draw(3)] + std::to_string(to);
            game << "5";  // water lets go of what is still selected
            if (game.board.history.UndoList().size() == before) continue;
            moments.resize(++at);
            moments.push_back(now());
            std::erase_if(checkpoints, [&](std::size_t moment) { return moment >= at; });
        } else if (what < 9) {
            game << "u";
            at -= at > 0 ? 1 : 0;
        } else if (what == 9) {
            game << "r";
            at += at + 1 < moments.size() ? 1 : 0;
        } else if (what == 10) {
            game << "c";
            checkpoints.insert(at);
        } else {
            game << "b";
            const auto here = checkpoints.lower_bound(at);
            if (here == checkpoints.begin()) continue;
            const std::size_t outer = *std::prev(here);
            checkpoints.erase(std::exchange(at, outer));
        }
        longest = std::max(longest, moments.size());
        ASSERT_EQ(now(), moments[at]) << "step " << step;
    }
    EXPECT_GT(longest, 20U);
}

TEST(History, IsReadFromTheNewestMoveToTheBeginning) {
    Play game;
    const auto lines = [&](bool spoken) {
        std::string all;
        for (const HistoryLine& line : HistoryLines(game.board.history)) {
            const Puzzle& puzzle = game.board.puzzle;
            all += (line.isAhead ? "(" : "") + (spoken ? SpokenText(line, puzzle) : Text(line, puzzle)) + "@" +
                   std::to_string(line.moment) + "; ";
        }
        return all;
    };
    EXPECT_EQ(lines(false), "");
    game << "1-4 1-49 c 1x43 1x43 1=4 u u";
    EXPECT_EQ(lines(false),
              "(R1C1 - R1C4: 1 to 2@5; (R1C1 - R7C1: mark taken away@4; R1C1 - R7C1: no bridge@3; Checkpoint 1@2; "
              "R1C1 - R1C4: 0 to 1@1; Beginning@0; ")
        << "a refused move is not shown";
    EXPECT_EQ(lines(true).substr(0, 62), "(taken back: row 1, column 1 to row 1, column 4: 1 to 2@5; (ta");
}

TEST(Keys, ArrowsGoToTheNearestInLineAndElseToTheNearestOnThatSide) {
    const auto towards = [](CellNumber id, BoardKey key) { return IslandTowards(PuzzleFrom(kField), key, id); };
    EXPECT_EQ(towards(1, BoardKey::Right), 3);
    EXPECT_EQ(towards(1, BoardKey::Down), 8) << "nothing below it: the nearest one further down";
    EXPECT_EQ(towards(10, BoardKey::Down), 25) << "in line, though 17 is no further away";
    EXPECT_EQ(towards(8, BoardKey::Left), 1) << "as far as 17, but less aside";
    EXPECT_EQ(towards(3, BoardKey::Up), 3) << "the board ends there";
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
    EXPECT_EQ(After(":.ef", {".1.1"}), "#2 ");
    EXPECT_EQ(After(":.enpp", kField), "#10 ");
    EXPECT_EQ(After(":.efpn", kField), "#3 ");
    EXPECT_EQ(After(":..r.", kField), "1-3*1 #3 ; 1, 3, 0");
    EXPECT_EQ(After(":..r=.lx", kField), "#1 ; 3, 1, 2; 1, 3, 0");
    EXPECT_EQ(After(":.x=", kField), "#1 ") << "nothing is selected";
    EXPECT_EQ(After(":..=x", kField), "#1 @1") << "an island is no pair with itself";
    EXPECT_EQ(After(":.e 8", kField), "@8") << "the mouse hides the focus";
    Play arrows(kField);
    (arrows << ":.").Run(LayTowards, BoardKey::Right);
    arrows.Run(LayTowards, BoardKey::Up);
    EXPECT_EQ(arrows.State(), "1-3*1 #1 ; 1, 3, 0") << "with Ctrl an arrow lays, where there is somebody to see";
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
        game.Run(mnuactual_Click);
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
        game.world.container = {600, 600};
        game << ":f";
        EXPECT_DOUBLE_EQ(at(), 300) << "there is no room for a margin";
    }
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
    Play done(Lines{"1.2.1"});
    done << "1-3 3-5";
    done.world.Seen();
    done.world.Expect("All Done!", "vbhappy+vbok");
    done.Run(cmdverify_Click);
    EXPECT_EQ(done.world.Seen(), "box, events");
}

TEST(Check, SaysWhatNumbersAloneDoNotShow) {
    Play crossed(Lines{".2.", "2.2", ".2."});
    crossed << "2=8 4=6";
    crossed.world.Expect("All Done!", "vbhappy+vbok");
    crossed.Run(cmdverify_Click);
    EXPECT_EQ(crossed.world.Status(), "All numbers are right, but bridges cross");
    EXPECT_EQ(crossed.board.Shape1.cell, (CellPlace{2, 2}));
    Play apart(Lines{"1.1", "...", "1.1"});
    apart.options.StrictCheck = true;
    (apart << "1-3 7-9").Run(cmdverify_Click);
    EXPECT_EQ(apart.world.Status(), "Not done yet: the islands are not one group");
    Play over(Lines{"1.1.1.1"});
    over << "1-7 3-5";
    over.world.Expect("All Done!", "vbhappy+vbok");
    over.Run(cmdverify_Click);
    EXPECT_EQ(over.world.Status(), "All numbers are right, but a bridge runs over an island");
}

TEST(Finish, IsNoticedWithTheLastBridge) {
    Play game(Lines{"1.2.1"});
    game << "1-3";
    EXPECT_EQ(game.world.Status(), "");
    game << "3-5";
    EXPECT_EQ(game.world.Status(), "Solved");
    EXPECT_TRUE(game.board.solved);
    game << "u";
    EXPECT_FALSE(game.board.solved);
    EXPECT_EQ(game.world.Status(), "");
}

TEST(Kept, PlayComesBackWithItsPuzzleAndSaysSo) {
    Play game;
    game << "1-4 1x43 c 1-4 u";
    const std::string state = game.State();
    game.board.history = {};
    game.Load(1);
    EXPECT_EQ(game.State(), state);
    EXPECT_EQ(game.board.history.Checkpoints(), std::vector<int>{2});
    EXPECT_EQ(game.world.Status(), "Your bridges are back");
    game << "r";
    EXPECT_EQ(game.board.BridgeState(1, 4), 2) << "what was taken back, too";
    game.world.Expect("Reset?", "vbYesNo", kYes);
    game.Run(mnupuzreset_Click);
    game.Load(1);
    EXPECT_EQ(game.State(), "") << "a reset forgets";
    game.options.KeepPlay = false;
    game << "1-4";
    game.Load(1);
    EXPECT_EQ(game.State(), "") << "nothing is to be kept";
    game.options.KeepPlay = true;
    game.world.plays[PlainGrid(game.board.puzzle)].history =
        History({{{1, 4, 0}, 1}, {{1, 2, 0}, 1}, {{4, 7, 0}, 1}}, 3, {1, 3});
    game.Load(1);
    EXPECT_EQ(game.State(), "1-4*1 ; 1, 4, 0") << "from the move on that cannot be";
    EXPECT_EQ(game.board.history.Checkpoints(), std::vector<int>{1});
}

TEST(Kept, AResetThatFailsForgetsNothing) {
    Play game;
    game << "1-4";
    game.world.Expect("Reset?", "vbYesNo", kYes);
    game.world.Expect("puzzle 1 not found", "vbinformation+vbok");
    std::filesystem::rename(game.PathOfCollection(), game.folder.Path("away"));
    game.Run(mnupuzreset_Click);
    std::filesystem::rename(game.folder.Path("away"), game.PathOfCollection());
    game.Run(CloseFiles);
    EXPECT_EQ(game.world.plays.size(), 1U);
    game.board.history = {};
    game.options.KeepPlay = false;
    game.world.leftUnseen = 0;
    game.Load(1);
    EXPECT_EQ(game.State(), "");
    EXPECT_EQ(game.world.leftUnseen, 1) << "and is not to be replaced when the player wants to keep play again";
}

TEST(Kept, WhatGoesWrongIsSaidOnce) {
    Play game;
    game.world.trouble = "no room";
    game << "1-4";
    EXPECT_EQ(game.world.Status(), "no room");
    game << "1-4";
    EXPECT_EQ(game.world.Status(), "");
    game.world.trouble = "damaged";
    game.world.plays.clear();
    game.Load(1);
    EXPECT_EQ(game.world.Status(), "damaged");
}

TEST(Kept, NothingOfAPuzzleThatWasNotPlayed) {
    Play game;
    game << "b u r";
    EXPECT_TRUE(game.world.plays.empty());
}

TEST(Kept, AWindowThatOnlyLooksOnKeepsNoMoves) {
    Play game;
    game << "1-4";
    Play other;
    other.world.plays = game.world.plays;
    other.Load(1);
    other.world.plays.begin()->second.history = History({{{4, 7, 0}, 2}}, 1, {});
    other.Run(Form_Activate, true);
    other.world.milliseconds += 5000;
    other.Run(Form_Activate, false);
    EXPECT_EQ(other.world.plays.begin()->second.history.Count(), 1) << "those of the first window";
    EXPECT_EQ(other.world.plays.begin()->second.history.Moves().front().record.a, 4);
    EXPECT_EQ(other.world.plays.begin()->second.seconds, 5);
}

TEST(Kept, TimeCountsWhileTheWindowIsActiveUntilThePuzzleIsSolved) {
    Play game(Lines{"1.2.1"});
    game.options.ShowTime = true;
    const auto pass = [&](int milliseconds) { game.world.milliseconds += milliseconds; };
    const auto kept = [&] { return game.world.plays.begin()->second.seconds; };
    pass(60000);
    game.Run(Form_Activate, true);
    game << "1-3";
    pass(1600);
    game.Run(Form_Activate, false);
    pass(60000);
    game.Run(Form_Activate, true);
    pass(1600);
    EXPECT_EQ(kept(), 1);
    game << "3-5";
    EXPECT_EQ(kept(), 3) << "parts of a second add up";
    EXPECT_EQ(game.world.Status(), "Solved (0:03)");
    pass(60000);
    game << "5 5";
    KeepTime(game);
    EXPECT_EQ(kept(), 3);
    game.Load(1);
    EXPECT_EQ(game.world.Status(), "Solved before");
    EXPECT_EQ(game.playTime.Seconds(game.world.milliseconds), 3);
    EXPECT_EQ(TimeText(59) + " " + TimeText(247) + " " + TimeText(3847), "0:59 4:07 1:04:07");
}

}  // namespace
}  // namespace tidewalk::test
