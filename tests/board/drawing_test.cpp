// SPDX-License-Identifier: MIT
// The board's geometry and its picture.
#include "board/drawing.h"

#include <gtest/gtest.h>

#include "drawing/contrast.h"
#include "support/board_text.h"
#include "support/doubles.h"

namespace tidewalk::test {
namespace {

TEST(Layout, FollowsFromTheCellSize) {
    const BoardLayout layout = LayoutBoard({7, 9}, 250, {9000, 7000});
    EXPECT_EQ(layout.DoubleGap, 42);
    EXPECT_EQ(layout.Picture1, (Frame{(9000 - 2587.5) / 2, (7000 - 2012.5) / 2, 2587.5, 2012.5}));
    // The origin, 168.75 and 256.25: half a cell lower than in the middle.
    EXPECT_EQ(layout.At({3, 7}), (Point{169 + 6 * 250, 256 + 2 * 250}));
    struct {
        int wanted, cell, half, pen;
    } const cases[] = {{0, 300, 150, 1}, {1, 200, 100, 1}, {399, 399, 200, 1}, {400, 400, 200, 2}, {701, 700, 350, 3}};
    for (const auto& expected : cases) {
        const BoardLayout other = LayoutBoard({7, 7}, expected.wanted, {9000, 9000});
        EXPECT_EQ(other.CellSize, expected.cell);
        EXPECT_EQ(other.HalfCell, expected.half);
        EXPECT_EQ(other.LineWidth, expected.pen);
        EXPECT_EQ(other.fontSize, expected.cell / 50.0);
    }
    EXPECT_EQ(FittingCellSize({25, 9}, 9000), 333);
    EXPECT_EQ(FittingCellSize({7, 8}, 4505), 450) << "450.5, halves go to even";
}

TEST(Layout, ACellReachesHalfACellAroundItsIsland) {
    const BoardLayout layout = LayoutBoard({7, 9}, 300, {9000, 9000});
    const Point at = layout.At({1, 4});
    EXPECT_EQ(CellUnder(layout, {at.x - 149, at.y + 149}), (CellPlace{1, 4}));
    EXPECT_EQ(CellUnder(layout, {at.x - 151, at.y + 150}), (CellPlace{2, 3}));
    EXPECT_EQ(CellUnder(layout, {at.x, at.y - 151}), (CellPlace{0, 4}));
    CellUnder(layout, {1e300, -1e300});
}

/// A board of one row or column in cells of 400 twips and colours that are easy to tell apart. Its islands are a 1 at
/// (90, 230) and a 2 at (890, 230), 300 twips wide, their numbers 80 wide and 160 high.
struct Drawn : testing::Test {
    Drawn() {
        options.SchemeColours[kBackgroundEntry] = kWhite;
        options.SchemeColours[kOutlineEntry] = 33;
        options.GridColour = 1;
        options.NodeColour = 2;
        options.GivenColour = 6710886;
        options.ChainColour = 4;
        Take({"1-2"});
    }
    void Take(const Rows& rows) {
        board.puzzle = PuzzleFrom(rows);
        board.layout = LayoutBoard(board.puzzle.Size(), 400, {9000, 9000});
    }

    /// What is drawn, but for the outlines of all cells but the first.
    std::string Redraw(bool solution) const {
        BoardPicture picture;
        BoardDrawing(picture, board, options).RedrawBoard(solution);
        EXPECT_EQ(picture.Count("box"), 3);
        picture.calls.erase(picture.calls.begin() + 3, picture.calls.begin() + 5);
        std::string all;
        for (const std::string& call : picture.calls)
            all += (all.empty() ? "" : ", ") + call;
        return all;
    }

    Board board;
    Options options;
    const std::string start = "clear 16777215, pen 1, box -110 30 290 430 33, pen 2, ";
    const std::string ends =
        "filledbox -60 80 240 380 2, print 50 150 1 6710886, filledbox 740 80 1040 380 2, print 850 150 2 6710886";
    const std::string line = "line 90 230 890 230 ";
    const std::string second = "line 90 297 890 297 ";  ///< of a double line
};

TEST_F(Drawn, BoardHasOutlinesLinesAndIslands) {
    EXPECT_EQ(Redraw(false), start + line + "1, " + ends + ", pen 4, pen 2");
    options.ShowLines = 0;
    options.NodeShape = 1;
    options.ShowFinished = 1;
    EXPECT_EQ(Redraw(false),
              start +
                  "circle 90 230 200 2 2, print 50 150 1 6710886, circle 890 230 200 2 2, print 850 150 2 6710886, "
                  "pen 4, pen 2");
}

TEST_F(Drawn, ThinLinesDoNotTellTheSolution) {
    Take({"1.1.1"});
    const auto thin = [this] {
        BoardPicture picture;
        BoardDrawing(picture, board, options).RedrawBoard(false);
        return picture.Count("line");
    };
    EXPECT_EQ(thin(), 2) << "every pair in sight";
    board.puzzle.LinkList = {MakeLink(1, 3, 1)};
    EXPECT_EQ(thin(), 2) << "with a stored bridge, too";
    options.StoredLinesOnly = true;
    EXPECT_EQ(thin(), 1);
    board.Marks.Set(3, 5, true);
    EXPECT_EQ(thin(), 5) << "a cross is two strokes, on two wider ones of the background";
}

TEST_F(Drawn, MistakesAreShownOnDemandEachInItsShape) {
    Take({"1.1.1"});
    board.BridgeState.Set(1, 3, 2);
    const auto strokes = [this](bool Options::*shown) {
        Options with = options;
        with.*shown = true;
        BoardPicture before;
        BoardPicture after;
        BoardDrawing(before, board, options).RedrawBoard(false);
        BoardDrawing(after, board, with).RedrawBoard(false);
        return std::pair(after.Count("box") - before.Count("box"), after.Count("line") - before.Count("line"));
    };
    EXPECT_EQ(strokes(&Options::ShowOverfull), std::pair(2, 0)) << "two islands, a box each";
    EXPECT_EQ(strokes(&Options::ShowClosedGroups), std::pair(0, 12)) << "two islands, brackets of six strokes each";
    EXPECT_EQ(strokes(&Options::ShowCrossings), std::pair(0, 0));
    board.BridgeState.Set(1, 3, 0);
    board.BridgeState.Set(1, 5, 1);
    EXPECT_EQ(strokes(&Options::ShowCrossings), std::pair(0, 4)) << "a diamond";
}

TEST_F(Drawn, SolutionHasItsBridgesWhateverElseShows) {
    options.ShowLines = 0;
    options.ShowFinished = 1;
    board.BridgeState.Set(1, 3, 1);
    EXPECT_EQ(Redraw(true), start + line + "1, " + ends);
    board.puzzle.LinkList = {MakeLink(1, 3, 0), MakeLink(3, 1, 2)};
    EXPECT_EQ(Redraw(true), start + line + "1, " + second + "1, " + ends);
    Take({"1", "|", "2"});
    const std::string down = "line 30 290 30 1090 1, ";
    EXPECT_NE(Redraw(true).find(down + "filledbox"), std::string::npos);
    board.puzzle.LinkList = {MakeLink(1, 3, 0)};
    EXPECT_NE(Redraw(true).find(down + "line 97 290 97 1090 1, filledbox"), std::string::npos);
}

TEST_F(Drawn, PlayersBridgesLieOverTheIslandsAndUnderTheirEnds) {
    Take({"1.2"});
    board.OpenNeighbours[3].Append(1);
    board.BridgeState.Set(3, 1, 1);
    const std::string before = start + "line 890 230 90 230 1, " + line + "1, " + ends + ", pen 4, ";
    const std::string one = before + line + "16777215, " + second + "16777215, " + line + "4, " + ends + ", ";
    EXPECT_EQ(Redraw(false).substr(0, one.size()), one);
    board.BridgeState.Set(3, 1, 2);
    const std::string two = before + line + "4, " + second + "4, " + ends + ", ";
    EXPECT_EQ(Redraw(false).substr(0, two.size()), two);
}

TEST_F(Drawn, FinishedIslandsArePaleAndAllNumbersCanBeRead) {
    Take({"1.2"});
    options.NodeColour = kDefaultNodeColour;
    options.GivenColour = kBlack;
    EXPECT_NE(Redraw(false).find("print 50 150 1 16777215, "), std::string::npos) << "nearly the same";
    options.NodeColour = kBlack;
    EXPECT_NE(Redraw(false).find("print 50 150 1 16777215, "), std::string::npos);
    options.ShowFinished = 1;
    board.BridgeState.Set(1, 3, 1);
    // A black rim of an eighth of the shape around a light grey, and a dark number; the other one lacks a bridge.
    const std::string pale = "filledbox -60 80 240 380 0, filledbox -42 98 222 362 " +
                             std::to_string(Mixed(kBlack, kWhite, 0.8)) +
                             ", print 50 150 1 0, filledbox 740 80 1040 380 0, print 850 150 2 16777215, ";
    const std::size_t islands = (start + line + "1, ").size();
    EXPECT_EQ(Redraw(false).substr(islands, pale.size()), pale);
}

}  // namespace
}  // namespace tidewalk::test
