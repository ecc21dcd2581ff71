// SPDX-License-Identifier: MIT
#include "board/copy_and_print.h"

#include <gtest/gtest.h>

#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

const std::string kOtherPuzzle = Record({"2=2....", ".......", ".......", ".......", ".......", ".......", "......."});

/// A game on puzzle 2 of its collection, and another file with `lines` to print from.
class Printing : public ::testing::Test {
 protected:
    Printing() : game({kSmallPuzzle, kSmallPuzzle}) { game.Load(2); }

    /// Prints puzzles `start` to `end` of a file with these lines.
    void Print(const std::vector<std::string>& lines, const std::string& start, const std::string& end) {
        std::string bytes;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        path = game.folder.Write("other.tdw", bytes);
        game.form5.play = [=, this](Form5Fields& fields) {
            Form5_Activate(game, fields);
            fields.FileNow = path;
            fields.Text1 = start;
            fields.Text2 = end;
            Form5_Command1_Click(game, fields);
        };
        control27_Click(game);
    }

    void ExpectUnchanged() const {
        EXPECT_EQ(game.PuzzleNumber, 2);
        EXPECT_EQ(game.CollectionPath, game.folder.Path("collection.tdw"));
        EXPECT_EQ(game.NumberTotal, 30);
        EXPECT_EQ(game.BusyFlag, NoValue);
        EXPECT_EQ(game.CancelFlag, NoValue);
        EXPECT_EQ(game.window.pointer, Pointer::Default);
        EXPECT_EQ(game.window.progressTotal, 0);
    }

    TestGame game;
    std::string path;
};

TEST_F(Printing, CopiesPuzzleAndSolution) {
    mnucopyclippuz_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "Puzzle copied to clipboard");
    EXPECT_EQ(game.clipboard.picture.calls[1], "print 400 200 Puzzle# 2 file:" + game.CollectionPath + " 0");
    EXPECT_EQ(game.clipboard.picture.Count("line"), 0);
    game.clipboard.picture.calls.clear();
    mnucopyclipsol_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "Solution copied to clipboard");
    EXPECT_EQ(game.clipboard.picture.calls[1], "print 400 200 Solution# 2 file:" + game.CollectionPath + " 0");
    EXPECT_EQ(game.clipboard.picture.Count("line"), 15);
}

TEST_F(Printing, CopyDuringAJobShowsTheGivenNumbers) {
    game.BusyFlag = YesValue;
    game.IslandGrid(1, 3) = -1;  // the solver has laid all bridges of this island
    mnucopyclippuz_Click(game);
    EXPECT_EQ(game.clipboard.picture.Count("circle"), 11);
}

TEST_F(Printing, FailedCopyIsNotReportedAsDone) {
    game.clipboard.works = false;
    mnucopyclippuz_Click(game);
    EXPECT_EQ(game.window.texts[Control::pb], "The picture could not be copied to clipboard");
}

TEST_F(Printing, CurrentPuzzleIsOnePageWithBothBoards) {
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 6);
    game.prompts.Expect("Printed", "vbinformation+vbok", 1);
    mnuprintcurrent_Click(game);
    EXPECT_TRUE(game.printers.printed);
    ASSERT_EQ(game.printers.pages.size(), 1U);
    EXPECT_EQ(game.printers.pages[0].Count("circle"), 22);
    EXPECT_EQ(game.printers.pages[0].Count("line"), 15);
}

TEST_F(Printing, CurrentPuzzleIsNotPrintedWithoutConsent) {
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 7);
    mnuprintcurrent_Click(game);
    EXPECT_TRUE(game.printers.pages.empty());
}

TEST_F(Printing, PdfFileAsksForItsName) {
    game.printers.names = {"PDF file"};
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 6);
    game.filePicker.Answer("");
    mnuprintcurrent_Click(game);
    EXPECT_TRUE(game.printers.pages.empty());
    path = game.folder.Write("page.v2.pdf", "old");
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 6);
    game.prompts.ExpectSystemBox("OverWrite file: " + path + " ?", SystemButtons::YesNo, 7);
    game.filePicker.Answer(game.folder.Path("page.v2"));
    mnuprintcurrent_Click(game);
    EXPECT_TRUE(game.printers.pages.empty());
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 6);
    game.prompts.Expect("Printed", "vbinformation+vbok", 1);
    game.filePicker.Answer("other.PDF");
    mnuprintcurrent_Click(game);
    EXPECT_EQ(game.printers.file, "other.PDF");
    EXPECT_TRUE(game.printers.printed);
}

TEST_F(Printing, RefusedDuringAJobAndWithoutAPuzzle) {
    game.BusyFlag = YesValue;
    for (const auto command : {mnuprintcurrent_Click, mnuprintpreview_Click, control27_Click}) {
        game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
        command(game);
    }
    game.BusyFlag = NoValue;
    game.PuzzleNumber = 0;
    for (const auto command : {mnuprintcurrent_Click, mnuprintpreview_Click}) {
        game.prompts.Expect("No puzzle to print", "vbinformation+vbok", 1);
        command(game);
    }
}

TEST_F(Printing, FailingPrinterSaysWhyAndChangesNothing) {
    game.BridgeState.Set(3, 7, 2);
    game.prompts.Expect("Print Current Puzzle and its Solution?", "vbquestion+vbyesno", 6);
    game.prompts.ExpectSystemBox("Printing failed:\r\nno such folder", SystemButtons::Ok, 1);
    game.printers.beginError = "no such folder";
    mnuprintcurrent_Click(game);
    game.prompts.ExpectSystemBox("Printing failed:\r\nno such folder", SystemButtons::Ok, 1);
    Print({kOtherPuzzle}, "1", "1");
    EXPECT_EQ(game.BridgeState(3, 7), 2);
    ExpectUnchanged();

    game.printers.beginError.clear();
    game.printers.failAtEnd = true;
    game.prompts.ExpectSystemBox("Printing failed:\r\nout of paper", SystemButtons::Ok, 1);
    Print({kOtherPuzzle}, "1", "1");
    game.printers.failAtPage = 2;
    game.prompts.ExpectSystemBox("Printing failed:\r\nout of paper", SystemButtons::Ok, 1);
    Print({kOtherPuzzle, kOtherPuzzle}, "1", "2");
    EXPECT_FALSE(game.printers.printed);
    ExpectUnchanged();
}

TEST_F(Printing, BrokenLinesOfARangeLeaveTheirPagesEmpty) {
    std::vector<std::string> lines(200, kOtherPuzzle);
    lines[1] = "no record";
    lines[2] = " 7, 7, 1;D;2=2....,";
    lines[150].clear();
    path = game.folder.Path("other.tdw");
    game.prompts.Expect("Printed 199 puzzles from file:\r\n" + path, "vbinformation+vbok", 1);
    Print(lines, "2", "200");
    ASSERT_EQ(game.printers.pages.size(), 199U);
    for (std::size_t i = 0; i < game.printers.pages.size(); ++i) {
        const bool broken = i == 0 || i == 1 || i == 149;
        EXPECT_EQ(game.printers.pages[i].Count("circle"), broken ? 0 : 4) << i;
    }
    EXPECT_EQ(game.printers.pages[2].calls.front(), "print 1200 600 Puzzle# 4 file:" + path + " 0");
    ExpectUnchanged();
}

TEST_F(Printing, CancelEndsTheRangeWithoutADocument) {
    game.clock.step = 30;
    game.events.happen = [this] {
        EXPECT_EQ(game.BusyFlag, YesValue);
        EXPECT_EQ(game.window.pointer, Pointer::Busy);
        if (game.window.progressDone == 5) game.CancelFlag = YesValue;
    };
    Print(std::vector<std::string>(50, kOtherPuzzle), "1", "50");
    EXPECT_EQ(game.printers.pages.size(), 6U);
    EXPECT_FALSE(game.printers.printed);
    EXPECT_EQ(game.window.texts[Control::pb], "Printing cancelled");
    ExpectUnchanged();
}

TEST_F(Printing, PuzzleThatThePlayerGoesToMeanwhileStays) {
    game.clock.step = 30;
    game.events.happen = [this] {
        if (game.PuzzleNumber != 2) return;
        game.window.SetText(Control::PuzNumNow, "1");
        PuzNumNow_KeyPress(game, kEnterKey);
    };
    Print(std::vector<std::string>(50, kOtherPuzzle), "1", "50");
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_FALSE(game.printers.printed);
    EXPECT_EQ(game.BusyFlag, NoValue);
}

TEST_F(Printing, RangeOutsideTheFileIsRefused) {
    for (const auto& [start, end] : {std::pair{"0", "1"}, {"2", "1"}, {"1", "3"}, {"", ""}, {"-1", "x"}}) {
        game.prompts.Expect("Incorrect start or end puzzle number", "vbcritical+vbok", 1);
        Print({kOtherPuzzle, kOtherPuzzle}, start, end);
    }
    game.prompts.Expect("No puzzles in this file: " + path, "vbcritical+vbok", 1);
    Print({}, "1", "1");
    EXPECT_TRUE(game.printers.pages.empty());
}

TEST_F(Printing, FormFiveCountsThePickedFileAndRemembersThePrinter) {
    Form5Fields fields;
    fields.FileNow = game.CollectionPath;
    Form5_Activate(game, fields);
    EXPECT_EQ(fields.Text1 + "-" + fields.Text2 + " " + fields.Combo1, "1-2 Office");

    const std::string empty = game.folder.Write("empty.tdw", "");
    game.filePicker.Answer(empty);
    game.prompts.Expect("No puzzles in this file: " + empty, "vbcritical+vbok", 1);
    Form5_gf1_Click(game, fields);
    EXPECT_EQ(fields.FileNow, empty);
    EXPECT_EQ(game.filePicker.requests[0].title, "Select a Puzzle file to print");

    fields.FileNow = game.CollectionPath;
    fields.Text2 = " 2 ";
    fields.Combo1 = "PDF file";
    EXPECT_TRUE(Form5_Command1_Click(game, fields));
    EXPECT_EQ(fields.Tag, "Y");
    mnuprintpreview_Click(game);
    EXPECT_EQ(game.printers.printer, "PDF file");
    EXPECT_EQ(game.printers.pages[0].Count("circle"), 22);
}

}  // namespace
}  // namespace tidewalk::test
