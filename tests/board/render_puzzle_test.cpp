// SPDX-License-Identifier: MIT
#include "board/render_puzzle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "model/load_puzzle.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

struct Paper {
    const char* name;
    Surface::Area printable;
};

/// A quarter of an inch is left on every side.
const Paper kPapers[] = {{"A4", {360, 360, 11546, 16478}}, {"Letter", {360, 360, 11880, 15480}}};

/// A board with an island in every second cell of every second row, joined along the rows by double bridges and down
/// the columns by single ones.
std::vector<std::string> FullBoard(int rows, int cols) {
    std::vector<std::string> board;
    for (int row = 0; row < rows; ++row) {
        std::string line;
        for (int col = 0; col < cols; ++col) {
            const char onIslands = col % 2 == 0 ? '6' : (col + 1 < cols ? '=' : '.');
            const char between = col % 2 == 0 && row + 1 < rows ? '|' : '.';
            line += row % 2 == 0 ? onIslands : between;
        }
        board.push_back(line);
    }
    return board;
}

std::unique_ptr<Puzzle> Board(int rows, int cols) {
    TempFolder folder;
    NumberedFiles files;
    auto puzzle = std::make_unique<Puzzle>();
    EXPECT_TRUE(ReadPuzzle(files, folder.Write("one.txt", Record(FullBoard(rows, cols))), 1, *puzzle));
    return puzzle;
}

struct Call {
    std::string kind;
    std::vector<double> at;
    std::string text;
};

/// The numbers of a recorded call, and what a "print" prints.
Call Parse(const std::string& line) {
    std::istringstream words(line);
    Call call;
    words >> call.kind;
    const int numbers = call.kind == "print" ? 2 : call.kind == "circle" ? 3 : 4;
    for (int i = 0; i < numbers; ++i) {
        double value = 0;
        if (words >> value) call.at.push_back(value);
    }
    std::getline(words, call.text);
    return call;
}

std::vector<Call> Calls(const RecordingSurface& surface, const std::string& kind) {
    std::vector<Call> calls;
    for (const std::string& line : surface.calls) {
        Call call = Parse(line);
        if (call.kind == kind) calls.push_back(call);
    }
    return calls;
}

RenderRequest Request(RenderMode mode) {
    return mode == RenderMode::Page ? PageRequest("Puzzle# 1 file:x", 4, kPapers[0].printable)
                                    : PictureRequest(mode, "Puzzle# 1 file:x", 4);
}

TEST(RenderPuzzle, CellShrinksWithTheLargerSide) {
    const struct {
        int rows, cols, cell, half;
    } cases[] = {{7, 7, 900, 452}, {8, 8, 875, 438}, {7, 25, 365, 182}, {25, 7, 365, 182}, {25, 25, 365, 182}};
    for (const auto& expected : cases) {
        Puzzle puzzle;
        puzzle.Rows = expected.rows;
        puzzle.Cols = expected.cols;
        const PrintedBoard board = LayoutPrintedPuzzle(puzzle, Request(RenderMode::Puzzle));
        EXPECT_EQ(board.cell, expected.cell) << expected.rows << "x" << expected.cols;
        EXPECT_EQ(board.half, expected.half) << expected.rows << "x" << expected.cols;
    }
}

TEST(RenderPuzzle, NumberSizeDependsOnTheRowsAlone) {
    const auto tall = Board(25, 7);
    const auto wide = Board(7, 25);
    EXPECT_NEAR(LayoutPrintedPuzzle(*tall, Request(RenderMode::Puzzle)).fontSize, 7.3333, 0.001);
    EXPECT_NEAR(LayoutPrintedPuzzle(*wide, Request(RenderMode::Puzzle)).fontSize, 13.3333, 0.001);
}

TEST(RenderPuzzle, PictureHasItsTitleAboveAndItsIslandsInTheirCells) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    RecordingSurface picture;
    RenderPuzzle(game, picture, Request(RenderMode::Puzzle));
    EXPECT_EQ(picture.calls.front(), "clear 16777215");
    EXPECT_EQ(picture.calls[1], "print 400 200 Puzzle# 1 file:x 0");
    EXPECT_EQ(picture.Count("line"), 0);
    ASSERT_EQ(picture.Count("circle"), 11);
    const Call first = Calls(picture, "circle").front();  // row 1, column 3
    EXPECT_EQ(first.at, (std::vector<double>{400 + 2 * 900 + 452, 400 + 800 + 452, 360}));
}

TEST(RenderPuzzle, SolutionHasOneStrokeForASingleAndTwoForADoubleBridge) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    RecordingSurface picture;
    RenderPuzzle(game, picture, Request(RenderMode::Solution));
    EXPECT_EQ(picture.Count("line"), 15);
    // From row 1, column 3 to column 7, and an eighth of a cell below it.
    EXPECT_EQ(picture.calls[5].substr(0, 4), "line");
    const auto lines = Calls(picture, "line");
    EXPECT_NE(std::find_if(lines.begin(), lines.end(),
                           [](const Call& line) {
                               return line.at == std::vector<double>{2652, 1764, 6252, 1764};
                           }),
              lines.end());
    // No stroke comes after an island, which has to cover its end.
    const auto lastLine = std::find_if(picture.calls.rbegin(), picture.calls.rend(),
                                       [](const std::string& call) { return call.rfind("line", 0) == 0; });
    const auto firstCircle = std::find_if(picture.calls.begin(), picture.calls.end(),
                                          [](const std::string& call) { return call.rfind("circle", 0) == 0; });
    EXPECT_LT(lastLine.base(), firstCircle + 1);
}

TEST(RenderPuzzle, EverythingStaysOnThePage) {
    for (const Paper& paper : kPapers) {
        for (int rows = 1; rows <= 25; ++rows) {
            for (int cols = 1; cols <= 25; ++cols) {
                Puzzle puzzle;
                puzzle.Rows = rows;
                puzzle.Cols = cols;
                NumberCells(puzzle);
                puzzle.IslandGrid(1, 1) = puzzle.IslandGrid(rows, cols) = 8;
                RecordingSurface page;
                const auto request = PageRequest("Puzzle# 1 file:" + std::string(500, 'x'), 4, paper.printable);
                const Surface::Area drawn = RenderPuzzle(puzzle, page, request);
                EXPECT_GE(drawn.left, paper.printable.left) << paper.name << rows << "x" << cols;
                EXPECT_GE(drawn.top, paper.printable.top) << paper.name << rows << "x" << cols;
                EXPECT_LE(drawn.right, paper.printable.right) << paper.name << rows << "x" << cols;
                EXPECT_LE(drawn.bottom, paper.printable.bottom) << paper.name << rows << "x" << cols;
            }
        }
    }
}

TEST(RenderPuzzle, SolutionIsAsLargeAsThePageLetsItBe) {
    for (const Paper& paper : kPapers) {
        for (const auto& [rows, cols] : {std::pair{7, 7}, {7, 25}, {25, 7}, {15, 15}, {25, 25}}) {
            const auto puzzle = Board(rows, cols);
            const RenderRequest request = PageRequest("x", 4, paper.printable);
            const PrintedBoard whole = LayoutPrintedPuzzle(*puzzle, request);
            const PrintedBoard board = LayoutPrintedSolution(*puzzle, request, 200);
            EXPECT_EQ(board.top, 800 + 11800);
            const bool fits = board.top + rows * (board.cell + 1) <= paper.printable.bottom - 200 &&
                              board.left + cols * (board.cell + 1) <= paper.printable.right;
            EXPECT_TRUE(board.cell == whole.cell || !fits) << rows << "x" << cols;
            EXPECT_GT(board.Gap() - board.lineWidth * kTwipsPerPen, board.Gap() * 0.4) << "the strokes run together";
            EXPECT_LE(std::hypot(board.fontSize * 5.6, board.fontSize * 7.2), board.Radius())
                << "the number sticks out";
        }
    }
}

TEST(RenderPuzzle, PageHasItsHeadingWhereTheBoardLeavesRoom) {
    const struct {
        int rows;
        bool atOffset;
    } cases[] = {{7, true}, {14, true}, {15, false}, {22, false}, {25, true}};
    for (const auto& expected : cases) {
        const auto puzzle = Board(expected.rows, expected.rows);
        RecordingSurface page;
        RenderPuzzle(*puzzle, page, Request(RenderMode::Page));
        for (const Call& call : Calls(page, "print")) {
            if (call.text.find("Solution") == std::string::npos) continue;
            EXPECT_EQ(call.at[1], 11500);
            EXPECT_EQ(call.at[0] == 1200, expected.atOffset) << expected.rows;
            const std::string size = std::to_string(expected.rows);
            EXPECT_EQ(call.text, " Solution " + size + "x" + size + " 0");
        }
    }
}

TEST(RenderPuzzle, LongTitleLosesItsMiddleBetweenCharacters) {
    const auto puzzle = Board(7, 7);
    RecordingSurface page;
    std::string path;
    for (int i = 0; i < 300; ++i)
        path += "\xC3\xBC";
    RenderPuzzle(*puzzle, page, PageRequest("Puzzle# 1 file:" + path + "/end.tdw", 4, kPapers[0].printable));
    const std::string& title = page.calls.front();
    EXPECT_EQ(title.rfind("print 1200 600 Puzzle# 1 file:", 0), 0U);
    EXPECT_NE(title.find("/end.tdw 0"), std::string::npos);
    const std::size_t dots = title.find("...");
    ASSERT_NE(dots, std::string::npos);
    EXPECT_EQ(title.substr(dots - 2, 2), "\xC3\xBC");
    EXPECT_EQ(title.substr(dots + 3, 2), "\xC3\xBC");
}

}  // namespace
}  // namespace tidewalk::test
