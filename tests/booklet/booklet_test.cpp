// SPDX-License-Identifier: MIT
// Booklets of puzzles: what is read, where it lies on the pages, and what is drawn there.
#include "booklet/booklet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "booklet/front_pages.h"
#include "solver/count_solutions.h"
#include "solver/valid_solution.h"
#include "support/board_text.h"
#include "support/recording_surface.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

using Order = BookletDesign::Order;
using Solutions = BookletDesign::Solutions;

constexpr double kPrinterMargin = 360;

Sheet SheetOf(double width, double height) {
    return {{width, height}, {kPrinterMargin, kPrinterMargin, width - kPrinterMargin, height - kPrinterMargin}};
}

const Sheet kA4 = SheetOf(11906, 16838);
const Sheet kA5Landscape = SheetOf(11906, 8391);

Puzzle FullBoard(BoardSize size) {
    Puzzle puzzle(size);
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
        puzzle.SetIsland(id, 1);
    return puzzle;
}

std::vector<BookletEntry> Entries(const std::vector<BoardSize>& sizes) {
    std::vector<BookletEntry> entries;
    for (const BoardSize& size : sizes)
        entries.push_back({static_cast<int>(entries.size()) + 1, size, 3, true, Fingerprint(FullBoard(size))});
    return entries;
}

/// A full board of the entry's size is drawn, so that every cell of its place is.
PuzzleSource Full(const Booklet& booklet) {
    return [&booklet](int number) -> std::optional<Puzzle> {
        for (const BookletEntry& entry : booklet.Entries()) {
            if (entry.number == number) return FullBoard(entry.size);
        }
        return std::nullopt;
    };
}

Surface::Area AreaOf(const PlacedBoard& board, const Booklet& booklet) {
    const BoardSize size = booklet.Entries()[board.entry].size;
    return {board.left, board.top, board.left + size.cols * board.cell, board.top + size.rows * board.cell};
}

bool Overlap(const Surface::Area& a, const Surface::Area& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

/// Boards and captions lie on the printable part, apart from each other, in cells of one size that can be read; what
/// is free lies evenly on both sides.
void CheckPage(const BookletPage& page, const Booklet& booklet, const Sheet& sheet) {
    std::vector<Surface::Area> taken;
    std::map<bool, std::set<int>> cells;
    double left = sheet.size.width;
    double right = 0;
    for (const PlacedBoard& board : page.boards) {
        Surface::Area area = AreaOf(board, booklet);
        left = std::min(left, area.left);
        right = std::max(right, area.right);
        area.top = std::min(area.top, board.captionTop);
        for (const Surface::Area& other : taken)
            EXPECT_FALSE(Overlap(area, other));
        taken.push_back(area);
        cells[board.solution].insert(board.cell);
        EXPECT_GE(area.left, sheet.printable.left);
        EXPECT_GE(area.top, sheet.printable.top);
        EXPECT_LE(area.right, sheet.printable.right);
        EXPECT_LE(area.bottom, sheet.printable.bottom);
        EXPECT_GE(board.cell, board.solution ? kSmallestSolutionCell : kSmallestPuzzleCell);
    }
    for (const auto& [solution, sizes] : cells)
        EXPECT_EQ(sizes.size(), 1U);
    if (page.boards.size() == 1) {
        EXPECT_NEAR(left + right, sheet.size.width, 2);
    }
}

TEST(Booklet, EveryPuzzleHasItsPlaceOnItsPageHoweverManyThereAre) {
    const std::vector<std::vector<BoardSize>> collections{{{25, 25}, {25, 25}, {25, 25}},
                                                          {{7, 25}, {25, 7}, {7, 7}, {12, 9}, {8, 25}},
                                                          std::vector<BoardSize>(23, BoardSize{7, 7})};
    int laidOut = 0;
    for (const auto& sizes : collections) {
        for (const Sheet& sheet : {kA4, kA5Landscape}) {
            for (const int perPage : BookletDesign::kPerPage) {
                for (const Solutions solutions : {Solutions::None, Solutions::Beneath, Solutions::AtEnd}) {
                    BookletDesign design;
                    design.perPage = perPage;
                    design.solutions = solutions;
                    const Booklet booklet(design, Entries(sizes), sheet);
                    if (!booklet.Misfit().empty()) continue;
                    SCOPED_TRACE(std::to_string(perPage) + " of " + std::to_string(sizes.front().rows));
                    ++laidOut;
                    std::multiset<std::size_t> puzzles;
                    std::multiset<std::size_t> solved;
                    for (const BookletPage& page : booklet.Pages()) {
                        CheckPage(page, booklet, sheet);
                        int here = 0;
                        for (const PlacedBoard& board : page.boards) {
                            (board.solution ? solved : puzzles).insert(board.entry);
                            here += board.solution ? 0 : 1;
                        }
                        EXPECT_TRUE(perPage == BookletDesign::kAsManyAsFit || here <= perPage);
                    }
                    const std::size_t wanted = solutions == Solutions::None ? 0 : sizes.size();
                    EXPECT_EQ(puzzles.size(), sizes.size());
                    EXPECT_EQ(std::set(puzzles.begin(), puzzles.end()).size(), sizes.size());
                    EXPECT_EQ(solved.size(), wanted);
                    EXPECT_EQ(std::set(solved.begin(), solved.end()).size(), wanted);
                }
            }
        }
    }
    EXPECT_GT(laidOut, 60);
}

TEST(Booklet, SaysWhichPuzzleWouldBeTooSmallToRead) {
    BookletDesign design;
    design.perPage = 4;
    EXPECT_EQ(Booklet(design, Entries({{25, 25}}), kA4).Misfit(), "") << "cells of 3.5 mm";
    design.perPage = 9;
    const Booklet nine(design, Entries({{7, 7}, {25, 25}}), kA4);
    EXPECT_EQ(nine.Misfit(), "Puzzle 2 of 25x25 does not fit on the page beside 8 others at a size that can be read.");
    EXPECT_TRUE(nine.Pages().empty());
    design.perPage = 6;
    design.solutions = Solutions::Beneath;
    EXPECT_EQ(Booklet(design, Entries({{7, 7}, {25, 25}, {7, 7}}), SheetOf(8391, 11906)).Misfit().substr(0, 30),
              "Puzzle 2 of 25x25 does not fit")
        << "but the small ones do";
    design.solutions = Solutions::AtEnd;
    design.perPage = 1;
    design.solutions = Solutions::Beneath;
    const Booklet beneath(design, Entries({{25, 25}, {7, 7}, {24, 7}, {25, 9}}), kA5Landscape);
    EXPECT_EQ(beneath.Misfit(), "Puzzle 1 of 25x25 and 2 others do not fit on the page at a size that can be read.");
}

TEST(Booklet, PagesCarryTitleNumbersAndCaptions) {
    BookletDesign design;
    design.title = "Evenings";
    design.author = "Ada";
    design.perPage = 1;
    std::vector<BookletEntry> entries = Entries({{7, 7}, {7, 9}});
    entries[1].score = std::nullopt;
    entries[1].solved = false;
    const Booklet booklet(design, entries, kA4);
    const auto texts = [](const Booklet& of, int page) {
        RecordingSurface surface;
        of.DrawPage(page, surface, Full(of));
        std::string all;
        for (const std::string& call : surface.Calls("print")) {
            const std::string text = call.substr(call.find(' ', call.find(' ', 6) + 1) + 1);
            if (text != "1 0" || surface.calls.size() < 20) all += text.substr(0, text.size() - 2) + "|";
        }
        return all;
    };
    ASSERT_EQ(booklet.Pages().size(), 5U);
    EXPECT_EQ(texts(booklet, 0).substr(0, 13), "Evenings|Ada|");
    EXPECT_NE(texts(booklet, 0).find("|2 puzzles, 7x7 to 7x9|"), std::string::npos);
    EXPECT_NE(texts(booklet, 1).find("How the example is solved|1.|The 4 at row 5, column 1"), std::string::npos);
    EXPECT_EQ(texts(booklet, 2), "Evenings|3|No. 1 \u00B7 7x7 \u00B7 Easy|");
    EXPECT_EQ(texts(booklet, 3), "Evenings|4|No. 2 \u00B7 7x9|");
    EXPECT_EQ(texts(booklet, 4), "Evenings|5|Solutions|No. 1|") << "the other one has none";
    design.cover = design.rules = design.pageNumbers = design.sizes = design.grades = design.numbers = false;
    EXPECT_EQ(texts(Booklet(design, entries, kA4), 0), "Evenings \u00B7 Ada|No. 1|")
        << "solutions are found by numbers";
    design.solutions = Solutions::None;
    EXPECT_EQ(texts(Booklet(design, entries, kA4), 0), "Evenings \u00B7 Ada|");
}

TEST(Booklet, BoardsHaveTheirStrokesInTheMiddleAndTheIslandsAskedFor) {
    BookletDesign design;
    design.cover = design.rules = false;
    design.perPage = 1;
    design.solutions = Solutions::Beneath;
    design.shape = IslandShape::Square;
    const Puzzle puzzle = PuzzleFrom({"2=3-1"});
    std::vector<BookletEntry> entries = Entries({puzzle.Size()});
    entries.front().islands = Fingerprint(puzzle);
    const Booklet booklet(design, entries, kA4);
    RecordingSurface surface;
    EXPECT_TRUE(booklet.DrawPage(0, surface, [&](int) { return puzzle; }));
    EXPECT_EQ(surface.Count("circle"), 0);
    EXPECT_EQ(surface.Count("box"), 6);
    const auto lines = surface.Calls("line");
    ASSERT_EQ(lines.size(), 3U) << "the puzzle itself shows no bridges";
    const auto heightOf = [](const std::string& call) {
        std::istringstream words(call.substr(5));
        double x = 0;
        double y = 0;
        words >> x >> y;
        return y;
    };
    EXPECT_DOUBLE_EQ(heightOf(lines[1]) + heightOf(lines[2]), 2 * heightOf(lines[0]));
    RecordingSurface changed;
    EXPECT_FALSE(booklet.DrawPage(0, changed, [](int) { return PuzzleFrom({"1-3=2"}); }));
    EXPECT_EQ(changed.Count("box"), 0) << "another one by now";
}

/// Notes how far a drawing reaches.
class MeasuringSurface final : public RecordingSurface {
 public:
    void Line(double x1, double y1, double x2, double y2, Colour colour) override {
        Include(drawn, {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)});
        RecordingSurface::Line(x1, y1, x2, y2, colour);
    }
    void Circle(double x, double y, double radius, Colour outline, Colour fill) override {
        Include(drawn, {x - radius, y - radius, x + radius, y + radius});
        RecordingSurface::Circle(x, y, radius, outline, fill);
    }
    void Print(double x, double y, const std::string& text, Colour colour) override {
        const Extent extent = TextExtent(text);
        Include(drawn, {x, y, x + extent.width, y + extent.height});
        RecordingSurface::Print(x, y, text, colour);
    }

    Area drawn{1e9, 1e9, -1e9, -1e9};
};

TEST(Booklet, EverythingThatIsDrawnCanBePrinted) {
    BookletDesign design;
    design.title = "A title of many words that no line has room for, so that it goes on in another one";
    design.author = std::string(300, 'w');
    for (const Sheet& sheet : {kA4, kA5Landscape, SheetOf(8391, 11906)}) {
        design.cover = !design.cover;
        const Booklet booklet(design, Entries({{7, 7}, {8, 8}, {7, 9}}), sheet);
        for (int page = 0; page < static_cast<int>(booklet.Pages().size()); ++page) {
            MeasuringSurface surface;
            booklet.DrawPage(page, surface, Full(booklet));
            SCOPED_TRACE(std::to_string(sheet.size.width) + " page " + std::to_string(page));
            EXPECT_GE(surface.drawn.left, sheet.printable.left);
            EXPECT_GE(surface.drawn.top, sheet.printable.top);
            EXPECT_LE(surface.drawn.right, sheet.printable.right);
            EXPECT_LE(surface.drawn.bottom, sheet.printable.bottom);
            EXPECT_GE(surface.Count("print"), surface.Count("circle")) << "each island has its number";
            const bool rules = booklet.Pages()[static_cast<std::size_t>(page)].kind == BookletPage::Kind::Rules;
            // The solution of the example has twelve strokes, and eight of them are there after four steps.
            EXPECT_EQ(surface.Count("line"), rules ? 20 : 0);
        }
    }
}

TEST(BookletContents, AreReadWithASolutionForEachAndPutInOrder) {
    const TempFolder folder;
    const std::string small = kSmallPuzzle;
    std::string wrong = small;
    wrong.replace(wrong.find('='), 3, "---");
    const std::string path =
        folder.Write("c.tdw", small + "\nnothing\n" + wrong + "\n" + Record({"1.1", "...", "1.1"}) + "\n");
    const auto contents = ReadBookletContents(path, {1, PuzzleRange::kEnd}, true, [](int) { return true; });
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->unreadable, std::vector<int>{2});
    std::vector<BookletEntry> entries = contents->entries;
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[1].number, 3);
    EXPECT_TRUE(entries[1].solved) << "not by its record";
    EXPECT_FALSE(entries[2].solved) << "two pairs that cannot be joined";
    EXPECT_TRUE(entries[0].score);
    EXPECT_FALSE(entries[2].score);
    LineIndex lines;
    EXPECT_TRUE(IsValidSolution(*ReadSolvedPuzzle(lines, path, 3)));
    EXPECT_EQ(ReadSolvedPuzzle(lines, path, 4)->LinkCount(), 0);
    EXPECT_FALSE(ReadSolvedPuzzle(lines, path, 2));

    entries[0].score = 9;
    entries[1].score = 2;
    const auto order = [&](Order by) {
        SortEntries(entries, by);
        return std::to_string(entries[0].number) + std::to_string(entries[1].number) +
               std::to_string(entries[2].number);
    };
    EXPECT_EQ(order(Order::Size), "413");
    EXPECT_EQ(order(Order::Grade), "314");
    EXPECT_EQ(order(Order::Number), "134");

    int most = 0;
    EXPECT_FALSE(ReadBookletContents(path, {1, 4}, true, [&](int done) { return (most = done) < 2; }));
    EXPECT_EQ(most, 2);
    int asked = 0;
    EXPECT_FALSE(ReadBookletContents(path, {1, 1}, true, [&](int) { return ++asked < 3; })) << "in the middle of one";
    const auto one = ReadBookletContents(path, {3, 3}, false, [](int) { return true; });
    ASSERT_EQ(one->entries.size(), 1U);
    EXPECT_FALSE(one->entries[0].score) << "not asked for";
}

TEST(BookletRules, ExampleHasOneSolution) {
    EXPECT_EQ(CountSolutions(ExamplePuzzle(), 2), 1);
}

}  // namespace
}  // namespace tidewalk::test
