// SPDX-License-Identifier: MIT
#include "booklet/print_booklet.h"

#include <optional>

#include "booklet/booklet_choices.h"
#include "game/job.h"
#include "program/exit.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

const std::string kHopeless = Record({"8.1", "...", "1.."});
const std::string kLarge = Record(Lines(25, "1.......................1"));

/// A game whose window for booklets answers what a test tells it to.
struct PrintingBooklets : testing::Test {
    void Print(const Lines& lines, const std::function<bool(BookletRequest&)>& answer) {
        game.folder.Write("book.tdw", Joined(lines));
        game.world.booklet = [=, this](BookletRequest& request) {
            request.collection = book;
            Booklet_Activate(game, request);
            request.design.cover = request.design.rules = false;
            return answer(request);
        };
        game.Run(mnuprintbooklet_Click);
    }
    bool Accept(BookletRequest& request) { return game.Run(Booklet_Accept, request); }

    LoadedGame game{{kSmallPuzzle}};
    const std::string book = game.folder.Path("book.tdw");
};

TEST_F(PrintingBooklets, TheEndTellsWhatWasPrintedAndWhatIsMissing) {
    Lines lines{kSmallPuzzle, "no puzzle", Record({"1-1"}), kHopeless};
    game.printerName = "PDF file";
    game.world.ExpectPick("Print to a PDF file|*.pdf|PDF Files|save", "a");
    game.world.Expect(
        "Printed 3 puzzles on 2 pages to file:\r\na.pdf\r\n\r\nLines that are no puzzles and were left out: 2"
        "\r\n\r\nPuzzles without a solution: 4",
        kInformation);
    Print(lines, [this](BookletRequest& request) {
        request.design.author = "Ann";
        request.format.landscape = true;
        return Accept(request);
    });
    const DocumentSetup& setup = game.world.document;
    EXPECT_EQ(setup.title + "|" + setup.author + "|" + setup.subject, "book.tdw|Ann|Bridges: 3 puzzles, 1x3 to 7x7");
    EXPECT_EQ(setup.format, (SheetFormat{Paper::A4, true}));
    EXPECT_EQ(game.world.Status(), "");
    lines.insert(lines.begin(), 10, "no puzzle");
    lines.resize(13);
    game.printerName = "Office";
    game.world.Expect(
        "Printed 2 puzzles on 1 page on:\r\nOffice\r\n\r\nLines that are no puzzles and were left out: "
        "1, 2, 3, 4, 5, 6, 7, 8 and 3 others",
        kInformation);
    Print(lines, [this](BookletRequest& request) {
        request.design.solutions = BookletDesign::Solutions::None;
        request.design.title = "Bridges";
        return Accept(request);
    });
    EXPECT_EQ(game.world.document.title, "Bridges");
}

TEST_F(PrintingBooklets, WhatCannotBePrintedIsToldAndNothingBegins) {
    const auto refuse = [&](const std::string& first, const std::string& last, const std::string& reason, Lines lines) {
        game.world.Expect(reason, kCritical);
        Print(lines, [=, this](BookletRequest& request) {
            request.first = first;
            request.last = last;
            return Accept(request);
        });
    };
    for (const auto& [first, last] : {std::pair{"0", "1"}, {"2", "1"}, {"1", "3"}, {"", ""}})
        refuse(first, last, "Incorrect start or end puzzle number", {kSmallPuzzle, kSmallPuzzle});
    refuse("1", "1", "No puzzles in this file: " + book, {});
    refuse("2", "10002", "A booklet holds no more than 10000 puzzles", Lines(10002, "x"));
    std::string misfit;
    for (const bool told : {true, false}) {
        if (!told) game.world.Expect("Printing failed:\r\n" + misfit, "system ok");
        Print({kSmallPuzzle, kLarge}, [&](BookletRequest& request) {
            request.format.paper = Paper::A5;
            request.design.perPage = 9;
            const auto contents = ReadBookletContents(book, {}, false, [](int) { return true; });
            misfit = MakeBooklet(request, *contents, game.printers.SheetOf("", request.format)).Misfit();
            EXPECT_NE(misfit.find('2'), std::string::npos) << misfit;
            if (!told) return Accept(request);
            // The window knows before anything is read again.
            game.world.Expect(misfit, kCritical);
            request.known = std::make_shared<KnownPuzzles>(*contents);
            return Accept(request);
        });
    }
    game.world.Expect("Printing failed:\r\nNone of these lines is a puzzle", "system ok");
    Print({"no puzzle"}, [this](BookletRequest& request) { return Accept(request); });
    for (const bool closed : {false, true}) {
        std::optional<Job> job;
        game.world.booklet = [&](BookletRequest&) {
            if (closed) Form_QueryUnload(game);
            if (!closed) job.emplace(game, "AutoSolve");
            return true;
        };
        mnuprintbooklet_Click(game);
    }
    EXPECT_TRUE(game.world.pages.empty()) << "what happened meanwhile may forbid it, too";
}

TEST_F(PrintingBooklets, WhatTheWindowKnowsIsNotReadAgain) {
    for (const bool graded : {false, true}) {
        const auto known = std::make_shared<KnownPuzzles>();
        known->contents.entries = {{1, {7, 7}, {}, true, Fingerprint(*ParsePuzzleRecord(kSmallPuzzle))}};
        known->graded = graded;
        game.world.Expect("Printed " + std::string(graded ? "1 puzzle" : "2 puzzles") + " on 1 page on:\r\nOffice",
                          kInformation);
        Print({kSmallPuzzle, kSmallPuzzle}, [&](BookletRequest& request) {
            request.known = known;
            request.design.solutions = BookletDesign::Solutions::None;
            return Accept(request);
        });
    }
}

TEST_F(PrintingBooklets, ACollectionThatIsAnotherByNowIsNotPrintedForTheOneThatWasSeen) {
    const auto known = std::make_shared<KnownPuzzles>();
    known->contents.entries = {{1, {7, 7}, {}, true, 12345}};
    known->graded = true;
    game.world.Expect("Printing failed:\r\nAnother program has changed the puzzles meanwhile: " + book, "system ok");
    Print({kSmallPuzzle}, [&](BookletRequest& request) {
        request.known = known;
        return Accept(request);
    });
    game.printerName = "PDF file";
    game.world.ExpectPick("Print to a PDF file|*.pdf|PDF Files|save", "link.pdf");
    std::filesystem::create_symlink(book, "link.pdf");
    game.world.Expect("OverWrite file: link.pdf ?", "system yesno", kYes);
    game.world.Expect("Printing failed:\r\nThe booklet must not replace its own puzzles", "system ok");
    Print({kSmallPuzzle}, [&](BookletRequest& request) { return Accept(request); });
}

TEST_F(PrintingBooklets, AFailingPrinterSaysWhy) {
    game.world.beginError = "no such folder";
    for (const char* reason : {"no such folder", "out of paper"}) {
        game.world.Expect("Printing failed:\r\n" + std::string(reason), "system ok");
        Print({kSmallPuzzle}, [this](BookletRequest& request) { return Accept(request); });
        game.world.beginError.clear();
        game.world.failAtPage = 2;
    }
    const std::string seen = game.world.Seen();
    EXPECT_NE(seen.find("not busy, status: , box, booklet?"), std::string::npos) << seen;
}

TEST_F(PrintingBooklets, TheChoicesComeBackButForTheTitleAndWhatIsNoChoice) {
    BookletRequest chosen;
    chosen.format = {Paper::Letter, true};
    chosen.design = {"Title",
                     "Ann",
                     BookletDesign::kAsManyAsFit,
                     IslandShape::Square,
                     BookletDesign::Solutions::Beneath,
                     BookletDesign::Order::Grade,
                     false,
                     false,
                     false,
                     false,
                     false,
                     false,
                     4};
    KeepBookletChoices(game.choices, chosen);
    BookletRequest read;
    ReadBookletChoices(game.choices, read);
    chosen.design.title.clear();
    EXPECT_EQ(read.design, chosen.design);
    EXPECT_EQ(read.format, chosen.format);
    for (auto& [name, value] : game.world.choices)
        value = name == "BookletPaper" ? "A0" : "5";
    game.world.paper = Paper::A5;
    game.options.PrintLineWidth = 7;
    read = {};
    Booklet_Activate(game, read);
    BookletDesign usual;
    usual.author = "5";
    usual.lineWidth = 7;
    EXPECT_EQ(read.design, usual);
    EXPECT_EQ(read.format, (SheetFormat{Paper::A5, false}));
}

TEST_F(PrintingBooklets, APickedFileIsCounted) {
    BookletRequest request;
    request.collection = game.PathOfCollection();
    Booklet_Activate(game, request);
    const std::string empty = game.folder.Write("empty.tdw", "");
    for (const std::string& path : {std::string(), empty, game.folder.Write("two.tdw", "1\n2")}) {
        game.world.ExpectPick("Select a Puzzle file to print|*.tdw;*.txt;*.dat|Tidewalk Files|open", path);
        if (path == empty) game.world.Expect("No puzzles in this file: " + path, kCritical);
        game.Run(Booklet_Browse, request);
        EXPECT_EQ(request.collection, path.empty() ? game.PathOfCollection() : path);
        EXPECT_EQ(request.first + "-" + request.last, path.empty() ? "1-1" : path == empty ? "1-0" : "1-2");
    }
}

}  // namespace
}  // namespace tidewalk::test
