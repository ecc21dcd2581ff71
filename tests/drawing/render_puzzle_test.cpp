// SPDX-License-Identifier: MIT
// The picture of a puzzle, and what can be told from its background.
#include "drawing/render_puzzle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <tuple>

#include "drawing/contrast.h"
#include "drawing/puzzle_svg.h"
#include "drawing/svg_surface.h"
#include "support/board_text.h"
#include "support/recording_surface.h"

namespace tidewalk::test {
namespace {

/// A4 and Letter, of which a quarter of an inch is left on every side.
const Surface::Area kPapers[] = {{360, 360, 11546, 16478}, {360, 360, 11880, 15480}};

const std::string kTitle = "Puzzle# 1 file:x";

/// A board of this size with islands in its corners.
Puzzle Corners(int rows, int cols) {
    Puzzle puzzle({rows, cols});
    puzzle.SetIsland(1, 8);
    puzzle.SetIsland(puzzle.CellCount(), 8);
    return puzzle;
}

/// The numbers of a recorded call.
std::vector<double> NumbersOf(const std::string& call) {
    std::istringstream words(call.substr(call.find(' ')));
    std::vector<double> numbers;
    for (double number = 0; words >> number;)
        numbers.push_back(number);
    return numbers;
}

std::string CallWith(const RecordingSurface& surface, const std::string& text) {
    const auto found = std::find_if(surface.calls.begin(), surface.calls.end(),
                                    [&](const std::string& call) { return call.find(text) != std::string::npos; });
    return found == surface.calls.end() ? "" : *found;
}

TEST(RenderPuzzle, CellShrinksWithTheLargerSideAndNumbersWithTheRows) {
    // Rows, columns, the cell, its half, the numbers' size.
    const std::tuple<int, int, int, int, double> cases[] = {
        {7, 7, 900, 452, 13.333}, {8, 8, 875, 438, 13}, {7, 25, 365, 182, 13.333}, {25, 7, 365, 182, 7.333}};
    for (const auto& [rows, cols, cell, half, fontSize] : cases) {
        const PrintedBoard board =
            LayoutPrintedPuzzle(Corners(rows, cols), PictureRequest(RenderMode::Puzzle, kTitle, 4));
        EXPECT_EQ(board.cell, cell) << rows << "x" << cols;
        EXPECT_EQ(board.half, half) << rows << "x" << cols;
        EXPECT_NEAR(board.fontSize, fontSize, 0.001) << rows << "x" << cols;
    }
}

TEST(RenderPuzzle, PictureIsDrawnFromItsTitleToItsFooter) {
    const Puzzle puzzle = PuzzleFrom({"2=5-1.", "..I...", "..2..."});
    RecordingSurface picture;
    const Surface::Area drawn = RenderPuzzle(puzzle, picture, PictureRequest(RenderMode::Solution, kTitle, 9));
    // A cell is 900 twips and its centre 468 from its corner. The pen reaches out of an island by half its width. A
    // digit of 15 points is 147 twips wide and 293 high.
    const Rows calls{"clear 16777215",
                     "print 400 200 Puzzle# 1 file:x 0",
                     "line 2668 1668 4468 1668 0",
                     "line 868 1668 2668 1668 0",
                     "line 868 1780 2668 1780 0",
                     "line 2668 1668 2668 3468 0",
                     "line 2780 1668 2780 3468 0",
                     "circle 868 1668 360 0 16777215",
                     "circle 2668 1668 360 0 16777215",
                     "circle 4468 1668 360 0 16777215",
                     "circle 2668 3468 360 0 16777215",
                     "print 794.667 1521.33 2 0",
                     "print 2594.67 1521.33 5 0",
                     "print 4394.67 1521.33 1 0",
                     "print 2594.67 3321.33 2 0",
                     "print 400 3969.6 Tidewalk - bridges puzzles to play, solve and make 0"};
    EXPECT_EQ(picture.calls, calls);
    EXPECT_EQ(picture.drawWidth, 9);
    EXPECT_EQ(drawn.left, 400);
    EXPECT_EQ(drawn.top, 200);
    EXPECT_NEAR(drawn.right, 4849.6, 0.1) << "the island in column 5";
    EXPECT_NEAR(drawn.bottom, 4089.6, 0.1);
    RecordingSurface numbers;
    RenderPuzzle(puzzle, numbers, PictureRequest(RenderMode::Puzzle, kTitle, 9));
    EXPECT_EQ(numbers.Count("line"), 0);
    const RenderRequest narrow = PictureRequest(RenderMode::Puzzle, kTitle, 9);
    EXPECT_EQ(RenderPuzzle(PuzzleFrom({"1-1"}), numbers, narrow).right, 400 + 50 * 60) << "the footer";
}

TEST(RenderPuzzle, PenLeavesTheStrokesOfADoubleBridgeApart) {
    const auto widthOf = [](int side, int wanted) {
        return LayoutPrintedPuzzle(Corners(side, side), PictureRequest(RenderMode::Solution, kTitle, wanted)).lineWidth;
    };
    EXPECT_EQ(widthOf(7, 99), 12) << "a bit more than half of the 112 twips between them, in pens of 4.8";
    EXPECT_EQ(widthOf(25, 99), 5);
    EXPECT_EQ(widthOf(25, 0), 1);
}

TEST(RenderPuzzle, PageHoldsEverythingAndTheSolutionIsAsLargeAsItLets) {
    for (const Surface::Area& paper : kPapers) {
        const RenderRequest request = PageRequest("Puzzle# 1 file:" + std::string(500, 'x'), 4, paper);
        for (int cell = 0; cell < kMaxCells; ++cell) {
            const Puzzle puzzle = Corners(1 + cell / kMaxSide, 1 + cell % kMaxSide);
            const std::string size = "on " + NumText(puzzle.Rows) + "x" + NumText(puzzle.Cols);
            RecordingSurface page;
            const Surface::Area drawn = RenderPuzzle(puzzle, page, request);
            EXPECT_TRUE(drawn.left >= paper.left && drawn.top >= paper.top) << size;
            EXPECT_TRUE(drawn.right <= paper.right && drawn.bottom <= paper.bottom) << size;
            EXPECT_EQ(page.Count("circle"), cell == 0 ? 2 : 4) << size << ": the puzzle and its solution";
            const std::vector<double> last = NumbersOf(page.Calls("circle").back());
            EXPECT_LT(last[1] + last[2], NumbersOf(page.Calls("print").back())[1]) << size << ": the footer";

            const PrintedBoard whole = LayoutPrintedPuzzle(puzzle, request);
            const PrintedBoard board = LayoutPrintedSolution(puzzle, request, 240);
            const bool larger = board.top + puzzle.Rows * (board.cell + 1) <= paper.bottom - 240 &&
                                board.left + puzzle.Cols * (board.cell + 1) <= paper.right;
            EXPECT_TRUE(board.cell == whole.cell || !larger) << size;
            EXPECT_EQ(board.half, board.cell == whole.cell ? whole.half : RoundHalfEven(board.cell / 2.0)) << size;
            EXPECT_NEAR(last[2], board.Radius(), 0.001) << size;
            EXPECT_GT(board.Gap() - board.lineWidth * kTwipsPerPen, board.Gap() * 0.4) << size << ": one thick stroke";
            EXPECT_LE(std::hypot(board.fontSize * 5.6, board.fontSize * 7.2), board.Radius()) << size << ": a number";
            EXPECT_LE(board.fontSize, 5);
        }
    }
}

TEST(RenderPuzzle, WidePageHoldsPuzzleHeadingAndSolutionApart) {
    for (const Surface::Area& paper : {Surface::Area{360, 360, 16478, 11546}, Surface::Area{360, 360, 15480, 11880}}) {
        for (int cell = 1; cell < kMaxCells; ++cell) {
            const Puzzle puzzle = Corners(1 + cell / kMaxSide, 1 + cell % kMaxSide);
            RecordingSurface page;
            const Surface::Area drawn = RenderPuzzle(puzzle, page, PageRequest(std::string(500, 'x'), 4, paper));
            const std::string size = "on " + NumText(puzzle.Rows) + "x" + NumText(puzzle.Cols);
            EXPECT_TRUE(drawn.left >= paper.left && drawn.top >= paper.top) << size;
            EXPECT_TRUE(drawn.right <= paper.right && drawn.bottom <= paper.bottom) << size;
            const std::vector<double> end = NumbersOf(page.Calls("circle")[1]);
            const std::vector<double> heading = NumbersOf(CallWith(page, "Solution"));
            const std::vector<double> first = NumbersOf(page.Calls("circle")[2]);
            const std::vector<double> last = NumbersOf(page.Calls("circle")[3]);
            EXPECT_TRUE(heading[0] > end[0] + end[2] || heading[1] > end[1] + end[2]) << size;
            EXPECT_LT(heading[1] + 120, first[1] - first[2]) << size;
            const double footer = NumbersOf(page.Calls("print").back())[1];
            EXPECT_LT(std::max(end[1] + end[2], last[1] + last[2]), footer) << size;
        }
    }
}

TEST(RenderPuzzle, PageHasItsHeadingWhereTheBoardLeavesRoom) {
    for (const auto& [rows, atOffset] : {std::pair{7, true}, {14, true}, {15, false}, {22, false}, {25, true}}) {
        RecordingSurface page;
        RenderPuzzle(Corners(rows, 9), page, PageRequest(kTitle, 4, kPapers[0]));
        const std::string heading = CallWith(page, "Solution");
        EXPECT_NE(heading.find(" Solution " + NumText(rows) + "x9 0"), std::string::npos) << heading;
        EXPECT_EQ(NumbersOf(heading)[1], 11500);
        EXPECT_EQ(NumbersOf(heading)[0], atOffset ? 1200 : std::max(360, 1200 - 60 - 60 * (rows < 10 ? 12 : 13)));
        EXPECT_EQ(NumbersOf(CallWith(page, "Tidewalk"))[1], 16478 - 120) << "the footer stands at the foot";
        EXPECT_EQ(page.calls.front(), "print 1200 600 Puzzle# 1 file:x 0") << "paper is not cleared";
    }
}

TEST(RenderPuzzle, LongTitleLosesItsMiddleBetweenCharacters) {
    std::string path;
    for (int i = 0; i < 300; ++i)
        path += "\xC3\xBC";
    for (const std::string start : {"", "a"}) {
        RecordingSurface page;
        const std::string title = PrintTitle("Puzzle#", 1, start + path + "/end.tdw");
        RenderPuzzle(Corners(7, 7), page, PageRequest(title, 4, kPapers[0]));
        const std::string& shown = page.calls.front();
        const std::size_t dots = shown.find("...");
        ASSERT_NE(dots, std::string::npos);
        EXPECT_EQ(shown.substr(dots - 2, 2), "\xC3\xBC");
        EXPECT_NEAR(static_cast<double>(dots), (15 + static_cast<double>(shown.size())) / 2, 4) << "its middle";
        EXPECT_EQ(shown.substr(dots + 3, 2), "\xC3\xBC");
        // 80 twips a byte between the offset and the edge of the page.
        EXPECT_NEAR(static_cast<double>(shown.size()), 15 + (11546 - 1200) / 80 + 2, 4) << "no shorter than it must be";
    }
}

TEST(PuzzleSvg, IsTheDrawingWithAClassForEachKindAndWordsForThoseWhoCannotSeeIt) {
    // Overlong, a surrogate, no character, cut short: what is no text of XML.
    const std::string path = "a<b>&\"\xC3\xBC\x01\xFF\xC0\xAF\xED\xA0\x80\xEF\xBF\xBF\xC3";
    const std::string bad = "\xEF\xBF\xBD";
    std::string svg = PuzzleSvg(PuzzleFrom({"2=3-1"}), PictureRequest(RenderMode::Solution, "#1 " + path, 4));
    const std::string title = "#1 a&lt;b&gt;&amp;\"\xC3\xBC" + bad + bad + bad + bad + bad + bad;
    const std::string name = svg.substr(svg.find("puzzle-"), svg.find("\" width") - svg.find("puzzle-"));
    for (std::size_t at = 0; (at = svg.find(name, at)) != std::string::npos;)
        svg.replace(at, name.size(), "ID");
    EXPECT_EQ(svg,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" id=\"ID\" width=\"325\" height=\"168\" viewBox=\"195 0 4875 "
              "2520\">\n"
              "<title>" +
                  title +
                  "</title>\n"
                  "<desc>The solution of a bridges puzzle of 1 row and 5 columns with 3 islands. Row 1: 2 in "
                  "column 1, 3 in column 3, 1 in column 5. Bridges: one in row 1 from column 3 to 5, two in row 1 from "
                  "column 1 to 3.</desc>\n"
                  "<style type=\"text/css\">\n"
                  "#ID text{font-family:Arial}\n"
                  "#ID .title{fill:#000;font-size:160px}\n"
                  "#ID .footer{fill:#000;font-size:120px}\n"
                  "#ID .bridge{stroke:#000;stroke-width:19.2}\n"
                  "#ID .double-bridge{stroke:#000;stroke-width:19.2}\n"
                  "#ID .island{fill:#fff;stroke:#000;stroke-width:19.2}\n"
                  "#ID .number{fill:#000;text-anchor:middle;font-size:306.7px}\n"
                  "</style>\n"
                  "<rect class=\"paper\" x=\"195\" y=\"0\" width=\"4875\" height=\"2520\" fill=\"#fff\"/>\n"
                  "<text class=\"title\" x=\"400\" y=\"344.8\">" +
                  title +
                  "</text>\n"
                  "<line class=\"bridge\" x1=\"2682\" y1=\"1682\" x2=\"4482\" y2=\"1682\"/>\n"
                  "<line class=\"double-bridge\" x1=\"882\" y1=\"1682\" x2=\"2682\" y2=\"1682\"/>\n"
                  "<line class=\"double-bridge\" x1=\"882\" y1=\"1794\" x2=\"2682\" y2=\"1794\"/>\n"
                  "<circle class=\"island\" cx=\"882\" cy=\"1682\" r=\"360\"/>\n"
                  "<circle class=\"island\" cx=\"2682\" cy=\"1682\" r=\"360\"/>\n"
                  "<circle class=\"island\" cx=\"4482\" cy=\"1682\" r=\"360\"/>\n"
                  "<text class=\"number\" x=\"882\" y=\"1790.9\">2</text>\n"
                  "<text class=\"number\" x=\"2682\" y=\"1790.9\">3</text>\n"
                  "<text class=\"number\" x=\"4482\" y=\"1790.9\">1</text>\n"
                  "<text class=\"footer\" x=\"400\" y=\"2280.2\">Tidewalk - bridges puzzles to play, solve and "
                  "make</text>\n"
                  "</svg>\n");
    const RenderRequest plain = PictureRequest(RenderMode::Puzzle, "", 4);
    const std::string corners = PuzzleSvg(Corners(7, 7), plain);
    EXPECT_EQ(corners.find("ridges:"), std::string::npos) << "a puzzle does not tell its bridges";
    EXPECT_EQ(corners, PuzzleSvg(Corners(7, 7), plain));
    EXPECT_NE(corners.substr(0, 200), PuzzleSvg(Corners(7, 8), plain).substr(0, 200)) << "each has its own name";
}

TEST(SvgSurface, WhatLooksOtherThanItsKindSaysSo) {
    SvgSurface surface(15);
    surface.SetKind(Kind::Bridge);
    surface.Line(1, 2, 3.04, -0.01, kBlack);
    surface.SetDrawWidth(2);
    surface.Line(1, 2, 3, 4, kBlack);
    surface.SetKind(Kind::Other);
    surface.Box(30, 40, 10, 20, Rgb(1, 2, 255));
    surface.FilledBox(0, 0, 1, 1, kWhite);
    surface.Circle(5, 5, 5, kWhite, kWhite);
    const std::string svg = surface.Document({0, 0, 15, 15}, "", "");
    for (const char* const part :
         {".bridge{stroke:#000;stroke-width:15}", ".other{fill:none;stroke:#0102ff;stroke-width:30}",
          "</style>\n<line class=\"bridge\" x1=\"1\" y1=\"2\" x2=\"3\" y2=\"0\"/>\n<line class=\"bridge\" x1=\"1\" "
          "y1=\"2\" x2=\"3\" y2=\"4\" style=\"stroke:#000;stroke-width:30\"/>\n<rect class=\"other\" x=\"10\" y=\"20\" "
          "width=\"20\" height=\"20\"/>\n<rect class=\"other\" x=\"0\" y=\"0\" width=\"1\" height=\"1\" "
          "style=\"fill:#fff\"/>\n<circle class=\"other\" cx=\"5\" cy=\"5\" r=\"5\" style=\"fill:#fff\"/>\n</svg>"})
        EXPECT_NE(svg.find(part), std::string::npos) << part << "\nin\n" << svg;
}

TEST(Contrast, TellsWhatIsLegible) {
    EXPECT_NEAR(Contrast(kBlack, kWhite), 21, 0.001);
    EXPECT_NEAR(Contrast(Rgb(0x77, 0x77, 0x77), kWhite), 4.478, 0.001);
    EXPECT_NEAR(Contrast(Rgb(0, 255, 0), Rgb(0, 0, 255)), 6.262, 0.001);
    EXPECT_EQ(LegibleOn(kWhite, Rgb(0x76, 0x76, 0x76)), Rgb(0x76, 0x76, 0x76));
    EXPECT_EQ(LegibleOn(kWhite, Rgb(0x77, 0x77, 0x77)), kBlack);
    EXPECT_EQ(LegibleOn(kWhite, Rgb(0x77, 0x77, 0x77), kShapeContrast), Rgb(0x77, 0x77, 0x77));
    EXPECT_EQ(Mixed(Rgb(0, 100, 200), Rgb(100, 0, 200), 0.25), Rgb(25, 75, 200));
}

}  // namespace
}  // namespace tidewalk::test
