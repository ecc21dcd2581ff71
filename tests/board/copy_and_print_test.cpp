// SPDX-License-Identifier: MIT
#include "board/copy_and_print.h"

#include <optional>

#include "board/show_board.h"
#include "game/job.h"
#include "model/import_grid.h"
#include "model/plain_grid.h"
#include "program/exit.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kPdfPick = "Print to a PDF file|*.pdf|PDF Files|save";
const std::string kOther = Record({"2=2....", ".......", ".......", ".......", ".......", ".......", "......."});

/// A game on puzzle 2 of its collection, with a bridge on it.
struct Printing : testing::Test {
    Printing() : game({kOther, kSmallPuzzle}) {
        game.Load(2);
        game.board.BridgeState.Set(3, 7, 2);
        game.Run(RedrawBoard, false);
        game.options.PrintLineWidth = 6;
    }

    void PrintCurrent(int answer = kYes) {
        game.world.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", answer);
    }
    /// Asks for puzzles `first` to `last` of another file with these lines.
    void PrintRange(const Lines& lines, const std::string& first, const std::string& last) {
        game.folder.Write("other.tdw", Joined(lines));
        game.world.print = [=, this](PrintRequest& request) {
            request.collection = other;
            request.first = first;
            request.last = last;
            return Form5_Command1_Click(game, request);
        };
        game.Run(control27_Click);
    }

    /// The title of a picture, the islands on it, the strokes of bridges and their pen.
    static std::string Content(const RecordingSurface& surface) {
        if (surface.calls.empty()) return "";
        return surface.Calls("print").front() + "|" + std::to_string(surface.Count("circle")) + "|" +
               std::to_string(surface.Count("line")) + "|" + std::to_string(surface.drawWidth);
    }
    std::string Copied() {
        RecordingSurface surface;
        game.world.copied.draw(surface);
        return Content(surface);
    }

    TestGame game;
    const std::string file = " 2 file:" + game.PathOfCollection();
    const std::string page = "print 1200 600 Puzzle#" + file + " 0|22|15|6";
    const std::string other = game.folder.Path("other.tdw");
};

TEST_F(Printing, CopiesShowThePuzzleOrItsSolutionAsTheyWere) {
    const Lines grid = PlainGrid(game.board.puzzle);
    game.Run(mnucopyclippuz_Click);
    EXPECT_EQ(Copied(), "print 400 200 Puzzle#" + file + " 0|11|0|6");
    game.Run(mnucopyclipsol_Click);
    EXPECT_NE(game.world.copied.svg.find(">Solution#" + file + "</title>"), std::string::npos);
    EXPECT_EQ(game.world.Seen(), "status: Puzzle copied to clipboard, status: Solution copied to clipboard");
    game.Load(1);
    EXPECT_EQ(Copied(), "print 400 200 Solution#" + file + " 0|11|15|6") << "another puzzle is no matter";
    game.world.clipboard = game.world.copied.text;
    game.Run(mnupastepuzzle_Click);
    EXPECT_EQ(PlainGrid(game.board.puzzle), grid);
    game.world.copies = false;
    game.Run(mnucopyclippuz_Click);
    EXPECT_EQ(game.world.Status(), "The picture could not be copied to clipboard");
}

TEST_F(Printing, APictureIsSavedUnderTheNameThatIsChosen) {
    for (const auto& [chosen, written] :
         {std::pair{"", ""}, {"a.b", "a.b.png"}, {"a.SVG", "a.SVG"}, {"a.pdf", "a.pdf"}, {"a.png", "a.png"}}) {
        game.world.ExpectPick("Save Picture As|*.png;*.svg;*.pdf|PNG, SVG and PDF Pictures|save", chosen);
        if (*chosen != '\0') game.world.Expect("Picture saved to file:\r\n" + std::string(written), kInformation);
        game.Run(*chosen == '\0' ? mnusavepuzpicture_Click : mnusavesolpicture_Click);
        EXPECT_EQ(game.world.suggested, *chosen == '\0' ? "collection-2.png" : "collection-2-solution.png");
        EXPECT_EQ(game.world.savedTo, written);
    }
    EXPECT_EQ(Copied(), "print 400 200 Solution#" + file + " 0|11|15|6");
    game.world.saveError = "disk full";
    game.world.ExpectPick("Save Picture As|*.png;*.svg;*.pdf|PNG, SVG and PDF Pictures|save", "a.png");
    game.world.Expect("The picture could not be saved:\r\na.png\r\ndisk full", "system ok");
    game.Run(mnusavepuzpicture_Click);
    EXPECT_EQ(Copied(), "print 400 200 Puzzle#" + file + " 0|11|0|6");
}

TEST_F(Printing, TheCurrentPuzzleIsOnePageWithBothBoards) {
    PrintCurrent(kNo);
    game.Run(mnuprintcurrent_Click);
    PrintCurrent();
    game.world.Expect("Printed", kInformation);
    game.Run(mnuprintcurrent_Click);
    EXPECT_EQ(game.world.Seen(), "box, box, busy, printed, not busy, document gone, box");
    EXPECT_EQ(game.world.pages.size(), 1U);
    EXPECT_EQ(Content(game.world.pages[0]) + game.world.printedTo, page + "Office|");
    for (const auto& [chosen, asked] : {std::pair{"PDF file", "PDF file|"}, {"Gone", "Office|"}}) {
        game.printerName = chosen;
        game.Run(mnuprintpreview_Click);
        EXPECT_EQ(Content(game.world.pages[0]) + game.world.printedTo, page + asked);
    }
    game.collection.PuzzleNumber = 0;
    for (const auto command : {mnuprintcurrent_Click, mnuprintpreview_Click}) {
        game.world.Expect("No puzzle to print", kInformation);
        game.Run(command);
    }
}

TEST_F(Printing, APdfFileAsksForItsName) {
    game.printerName = "PDF file";
    const std::string old = game.folder.Write("page.v2.pdf", "old");
    for (const std::string& name : {std::string(), game.folder.Path("page.v2")}) {
        PrintCurrent();
        game.world.ExpectPick(kPdfPick, name);
        if (!name.empty()) game.world.Expect("OverWrite file: " + old + " ?", "system yesno", kNo);
        game.Run(mnuprintcurrent_Click);
    }
    EXPECT_EQ(game.world.Seen(), "box, pick, box, pick, box");
    PrintCurrent();
    game.world.ExpectPick(kPdfPick, "a.PDF");
    game.world.Expect("Printed", kInformation);
    game.Run(mnuprintcurrent_Click);
    EXPECT_EQ(game.world.printedTo, "PDF file|a.PDF");
}

TEST_F(Printing, AFailingPrinterSaysWhyAndKeepsTheBoard) {
    const std::string failed = "Printing failed:\r\n";
    game.world.beginError = "no such folder";
    game.world.Expect(failed + "no such folder", "system ok");
    PrintRange({kOther}, "1", "1");
    EXPECT_EQ(game.board.BridgeState(3, 7), 2);
    game.world.beginError.clear();
    game.world.failAtPage = 2;
    PrintCurrent();
    game.world.Expect(failed + "out of paper", "system ok");
    game.Run(mnuprintcurrent_Click);
    EXPECT_EQ(game.world.Seen(), "print?, box, box, busy, not busy, document gone, box");
    for (const char* last : {"1", "2"}) {
        game.world.Expect(failed + "out of paper", "system ok");
        PrintRange({kOther, kOther}, "1", last);
        EXPECT_TRUE(game.world.Seen().ends_with("not busy, document gone, number: 2, box"));
    }
}

TEST_F(Printing, ARangeMayHaveBrokenLinesAndNoPuzzleBefore) {
    for (const bool before : {true, false}) {
        game.collection.PuzzleNumber = 1;
        if (!before) game.collection = {};
        game.world.Expect("Printed 4 puzzles from file:\r\n" + other, kInformation);
        PrintRange({kOther, "no record", " 7, 7, 1;D;2=2....,", "", kOther, kOther}, "2", " 5");
        ASSERT_EQ(game.world.pages.size(), 4U);
        EXPECT_EQ(Content(game.world.pages[0]) + Content(game.world.pages[1]) + Content(game.world.pages[2]), "");
        EXPECT_EQ(Content(game.world.pages[3]), "print 1200 600 Puzzle# 5 file:" + other + " 0|4|2|6");
        EXPECT_EQ(game.collection.PuzzleNumber, before ? 1 : 0);
        EXPECT_EQ(game.board.BridgeState(3, 7), 0) << "the puzzle from before is read again";
    }
}

TEST_F(Printing, ARangeOutsideTheFileIsRefused) {
    for (const auto& [first, last] : {std::pair{"0", "1"}, {"2", "1"}, {"1", "3"}, {"", ""}}) {
        game.world.Expect("Incorrect start or end puzzle number", kCritical);
        PrintRange({kOther, kOther}, first, last);
    }
    game.world.Expect("No puzzles in this file: " + other, kCritical);
    PrintRange({}, "1", "1");
    for (const bool closed : {false, true}) {
        std::optional<Job> job;
        game.world.print = [&](PrintRequest& request) {
            if (closed) Form_QueryUnload(game);
            if (!closed) job.emplace(game, "AutoSolve");
            return request.first = request.last = "1", true;
        };
        control27_Click(game);
    }
    EXPECT_TRUE(game.world.pages.empty()) << "what happened meanwhile may forbid it, too";
}

TEST_F(Printing, TheWindowForRangesCountsThePickedFileAndRemembersThePrinter) {
    PrintRequest request;
    game.world.print = [&](PrintRequest& asked) { return request = asked, false; };
    game.Run(control27_Click);
    EXPECT_EQ(request.collection, game.PathOfCollection());
    game.Run(Form5_Activate, request);
    const auto shown = [&] {
        return request.first + "-" + request.last + " of " + std::to_string(request.puzzleCount) + " " +
               request.printer;
    };
    EXPECT_EQ(shown(), "1-2 of 2 Office");
    const std::string empty = game.folder.Write("empty.tdw", "");
    for (const std::string& path : {std::string(), empty, game.folder.Write("other.tdw", "1\n2\n3")}) {
        game.world.ExpectPick("Select a Puzzle file to print|*.tdw;*.txt;*.dat|Tidewalk Files|open", path);
        if (path == empty) game.world.Expect("No puzzles in this file: " + empty, kCritical);
        game.Run(Form5_gf1_Click, request);
        EXPECT_EQ(shown(), path.empty() ? "1-2 of 2 Office" : path == empty ? "1-0 of 0 Office" : "1-3 of 3 Office");
        EXPECT_EQ(request.collection, path.empty() ? game.PathOfCollection() : path);
    }
    request.printer = "PDF file";
    EXPECT_TRUE(game.Run(Form5_Command1_Click, request));
    EXPECT_EQ(game.printerName, "PDF file");
}

}  // namespace
}  // namespace tidewalk::test
