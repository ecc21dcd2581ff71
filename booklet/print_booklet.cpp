// SPDX-License-Identifier: MIT
#include "booklet/print_booklet.h"

#include <algorithm>
#include <utility>

#include "board/print_document.h"
#include "board/print_pages.h"
#include "booklet/booklet_choices.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

/// "1 page", "36 pages".
std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

/// Shows how far a part of the job is and lets events happen; false when the job is to stop.
class ShownSteps {
 public:
    ShownSteps(Game& game, Job& job, std::string what, std::size_t total)
        : game_(game), job_(job), what_(std::move(what)), total_(static_cast<int>(total)) {}

    bool operator()(int done) {
        if (!game_.job.MustStop() && game_.job.PollIsDue(game_.clock.Milliseconds())) {
            game_.window.SetText(WindowText::Status, what_ + Str(done + 1) + " of" + Str(total_));
            game_.window.SetProgress(done, total_);
            LetEventsThrough(game_);
            // The booklet has nothing to do with the board: another puzzle may be loaded without harm.
            job_.Adopt();
        }
        return !game_.job.MustStop();
    }

 private:
    Game& game_;
    Job& job_;
    std::string what_;
    int total_;
};

/// What the window has found out, or what comes of reading the puzzles now; nothing when the job is to stop.
std::optional<BookletContents> ContentsOf(Game& game, Job& job, const BookletRequest& request) {
    const bool graded = request.design.NeedsGrades();
    if (request.known && (request.known->graded || !graded)) return request.known->contents;
    const PuzzleRange range = RangeOf(request);
    ShownSteps step(game, job, "Reading puzzle", static_cast<std::size_t>(range.last - range.first + 1));
    return ReadBookletContents(request.collection, range, graded, step);
}

/// Each remark in a paragraph of its own.
std::string Paragraphs(const std::vector<std::string>& remarks) {
    std::string text;
    for (const std::string& remark : remarks)
        text += "\r\n\r\n" + remark;
    return text;
}

/// What came of a booklet.
struct BookletEnd {
    PrintEnd end = PrintEnd::Failed;
    std::string text = {};  ///< what the player is told of it
};

BookletEnd PrintPagesOf(Game& game, Job& job, const Booklet& booklet, const std::string& collection,
                        PrintDocument& document) {
    LineIndex lines;
    ShownSteps step(game, job, "Printing page", booklet.Pages().size());
    int current = 0;
    bool changed = false;
    const auto mayGoOn = [&] { return step(current) && !changed; };
    const auto puzzle = [&](int number) {
        return mayGoOn() ? ReadSolvedPuzzle(lines, collection, number) : std::nullopt;
    };
    const auto draw = [&](int page, Surface& surface, const Sheet&) {
        current = page;
        changed = !booklet.DrawPage(page, surface, puzzle) && !game.job.MustStop();
    };
    const PrintEnd end = PrintPages(document, static_cast<int>(booklet.Pages().size()), draw, mayGoOn);
    if (changed) return {PrintEnd::Failed, ChangedText(collection)};
    return {end, end == PrintEnd::Failed ? document.Error() : ""};
}

/// A document that does not come to its end is gone when this returns.
BookletEnd Print(Game& game, Job& job, const BookletRequest& request, const std::string& file) {
    CloseFiles(game);
    const auto contents = ContentsOf(game, job, request);
    if (!contents) return {PrintEnd::Cancelled};
    const Booklet booklet = MakeBooklet(request, *contents, game.printers.SheetOf(request.printer, request.format));
    if (const std::string reason = WhyNoPages(booklet); !reason.empty()) return {PrintEnd::Failed, reason};
    std::string error;
    DocumentSetup setup = BookletSetup(request.design, booklet.Entries(), request.collection);
    setup.printer = request.printer;
    setup.file = file;
    setup.format = request.format;
    const auto document = game.printers.Begin(setup, error);
    if (!document) return {PrintEnd::Failed, error};
    BookletEnd end = PrintPagesOf(game, job, booklet, request.collection, *document);
    if (end.end != PrintEnd::Printed) return end;
    const std::string where = file.empty() ? "on:\r\n" + request.printer : "to file:\r\n" + file;
    end.text = "Printed " + Counted(booklet.Entries().size(), "puzzle") + " on " +
               Counted(booklet.Pages().size(), "page") + " " + where + Paragraphs(RemarksOn(*contents, request.design));
    return end;
}

void ShowEnd(Game& game, const BookletEnd& end) {
    game.window.SetText(WindowText::Status, end.end == PrintEnd::Cancelled ? "Printing cancelled" : "");
    if (end.end == PrintEnd::Printed) game.prompts.Show(end.text, "vbinformation+vbok");
    if (end.end == PrintEnd::Failed) ShowPrintError(game, end.text);
}

/// "puzzles.pdf" for a collection of that name.
std::string DocumentName(const std::string& collection) {
    const std::string name = FileNameOf(collection);
    return name.substr(0, name.rfind('.')) + ".pdf";
}

/// False when nothing was printed and the player may want to ask for something else.
bool PrintBooklet(Game& game, const BookletRequest& request) {
    const auto file = AskDocumentFile(game, request.printer, DocumentName(request.collection));
    if (!file) return false;
    if (NameOneFile(request.collection, *file)) {
        ShowPrintError(game, "The booklet must not replace its own puzzles");
        return false;
    }
    BookletEnd end;
    {
        const BusyPointer busy(game);
        Job job(game, "Printing");
        end = Print(game, job, request, *file);
    }
    game.job.TakeBackCancel();
    if (!game.job.Ending()) ShowEnd(game, end);
    return end.end != PrintEnd::Failed;
}

std::string NoPuzzlesText(const std::string& path) {
    return "No puzzles in this file: " + path;
}

}  // namespace

void mnuprintbooklet_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    BookletRequest request;
    request.collection = game.collection.CollectionPath;
    // Where nothing comes of it, the window is there again with all that was typed.
    while (game.questions.AskBooklet(request) && !game.job.BusyFlag() && !game.job.Ending()) {
        if (PrintBooklet(game, request) || game.job.Ending()) return;
        request.known.reset();
    }
}

void Booklet_Activate(Game& game, BookletRequest& request) {
    request.printers = game.printers.Names();
    request.printer = CurrentPrinter(game);
    request.format.paper = game.printers.UsualPaper();
    request.design.lineWidth = game.options.PrintLineWidth;
    ReadBookletChoices(game.choices, request);
    if (request.last.empty()) Booklet_TakeFile(game, request);
}

void Booklet_Browse(Game& game, BookletRequest& request) {
    const std::string path = PickFile(game, {"Select a Puzzle file to print", "*.tdw;*.txt;*.dat", "Tidewalk Files",
                                             game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    request.collection = path;
    Booklet_TakeFile(game, request);
    if (request.puzzleCount == 0) game.prompts.Show(NoPuzzlesText(path), "vbcritical+vbok");
}

void Booklet_TakeFile(Game& game, BookletRequest& request) {
    request.puzzleCount = CountPuzzles(game, request.collection);
    request.first = "1";
    request.last = NumText(std::min(request.puzzleCount, kMostBookletPuzzles));
}

bool Booklet_Accept(Game& game, BookletRequest& request) {
    game.printerName = request.printer;
    request.puzzleCount = CountPuzzles(game, request.collection);
    std::string reason = WhyNoBooklet(request);
    if (reason.empty() && request.known) {
        const Sheet sheet = game.printers.SheetOf(request.printer, request.format);
        reason = WhyNoPages(MakeBooklet(request, request.known->contents, sheet));
    }
    if (!reason.empty()) {
        game.prompts.Show(reason, "vbcritical+vbok");
        return false;
    }
    KeepBookletChoices(game.choices, request);
    return true;
}

std::string ChangedText(const std::string& collection) {
    return "Another program has changed the puzzles meanwhile: " + collection;
}

std::string WhyNoBooklet(const BookletRequest& request) {
    if (request.puzzleCount == 0) return NoPuzzlesText(request.collection);
    const PuzzleRange range = RangeOf(request);
    if (range.last < range.first || range.first < 1 || range.last > request.puzzleCount)
        return "Incorrect start or end puzzle number";
    if (range.last - range.first >= kMostBookletPuzzles)
        return "A booklet holds no more than" + Str(kMostBookletPuzzles) + " puzzles";
    return "";
}

std::string WhyNoPages(const Booklet& booklet) {
    return booklet.Entries().empty() ? "None of these lines is a puzzle" : booklet.Misfit();
}

PuzzleRange RangeOf(const BookletRequest& request) {
    return {RoundedVal(request.first), RoundedVal(request.last)};
}

DocumentSetup BookletSetup(const BookletDesign& design, const std::vector<BookletEntry>& entries,
                           const std::string& collection) {
    DocumentSetup setup;
    const BookletDesign tidied = Tidied(design);
    setup.title = tidied.title.empty() ? FileNameOf(collection) : tidied.title;
    setup.author = tidied.author;
    setup.subject = "Bridges: " + ContentsText(entries);
    setup.keywords = "bridges, puzzles";
    return setup;
}

Booklet MakeBooklet(const BookletRequest& request, const BookletContents& contents, const Sheet& sheet) {
    std::vector<BookletEntry> entries = contents.entries;
    SortEntries(entries, request.design.order);
    return {request.design, std::move(entries), sheet};
}

}  // namespace tidewalk
