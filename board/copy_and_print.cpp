// SPDX-License-Identifier: MIT
#include "board/copy_and_print.h"

#include "board/print_document.h"
#include "board/print_pages.h"
#include "drawing/render_puzzle.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

/// The title of a picture or page of the puzzle on the board.
std::string TitleOf(const Game& game, std::string_view kind) {
    const Collection& collection = game.collection;
    if (!collection.importedFrom.empty()) return "Imported puzzle";
    return PrintTitle(kind, collection.PuzzleNumber, collection.CollectionPath);
}

/// The picture of the puzzle on the board as it is now. It may be drawn when the board holds another puzzle.
PuzzlePicture CurrentPicture(const Game& game, RenderMode mode) {
    const std::string title = TitleOf(game, mode == RenderMode::Solution ? "Solution#" : "Puzzle#");
    return PictureOf(game.board.puzzle, PictureRequest(mode, title, game.options.PrintLineWidth));
}

void CopyPicture(Game& game, RenderMode mode, const std::string& done) {
    const bool copied = game.clipboard.SetPicture(CurrentPicture(game, mode));
    game.window.SetText(WindowText::Status, copied ? done : "The picture could not be copied to clipboard");
}

/// The page of the puzzle on the board.
PuzzlePage CurrentPage(const Game& game) {
    return {game.board.puzzle, TitleOf(game, "Puzzle#")};
}

/// What a picture of the puzzle on the board may be called: "puzzles-12.png", "puzzles-12-solution.png".
std::string PictureName(const Game& game, RenderMode mode) {
    const Collection& collection = game.collection;
    const std::string file = FileNameOf(collection.CollectionPath);
    const std::string puzzle = file.substr(0, file.rfind('.')) + "-" + NumText(collection.PuzzleNumber);
    return (collection.importedFrom.empty() ? puzzle : "imported") +
           (mode == RenderMode::Solution ? "-solution.png" : ".png");
}

void SavePicture(Game& game, RenderMode mode) {
    if (RefuseWhileBusy(game)) return;
    const PuzzlePicture picture = CurrentPicture(game, mode);
    const std::string path =
        AskFileName(game, {"Save Picture As", "*.png;*.svg;*.pdf", "PNG, SVG and PDF Pictures", game.AppFolder,
                           FileRequest::Mode::Save, "png", PictureName(game, mode)});
    if (path.empty()) return;
    const std::string error = game.printers.SavePicture(path, picture);
    if (error.empty()) {
        game.prompts.Show("Picture saved to file:\r\n" + path, "vbinformation+vbok");
    } else {
        game.prompts.SystemBox("The picture could not be saved:\r\n" + path + "\r\n" + error, SystemButtons::Ok);
    }
}

/// Begins a document on the current printer. Nothing comes back when there is none to be: the player has said so, or
/// was told the reason.
std::unique_ptr<PrintDocument> BeginDocument(Game& game) {
    DocumentSetup setup;
    setup.printer = CurrentPrinter(game);
    const auto file = AskDocumentFile(game, setup.printer);
    if (!file) return nullptr;
    setup.file = *file;
    std::string error;
    auto document = game.printers.Begin(setup, error);
    if (!document) ShowPrintError(game, error);
    return document;
}

/// True when there is a puzzle that may be printed now; else the player is told.
bool CanPrintCurrent(Game& game) {
    if (RefuseWhileBusy(game)) return false;
    if (game.collection.PuzzleNumber >= 1) return true;
    game.prompts.Show("No puzzle to print", "vbinformation+vbok");
    return false;
}

struct PrintRange {
    std::string path;
    int start = 1;
    int end = 1;
    int Count() const { return end - start + 1; }
};

/// Draws a page for each puzzle of the range. The current puzzle is not touched: each page has a puzzle of its own.
PrintEnd PrintRangePages(Game& game, const PrintRange& range, PrintDocument& document) {
    LineIndex lines;
    const auto draw = [&](int number, Surface& page, const Sheet& sheet) {
        CloseFiles(game);
        game.window.SetProgress(number, range.Count());
        if (const auto content = PageOf(lines, range.path, range.start + number))
            DrawPage(*content, game.options.PrintLineWidth, page, sheet.printable);
    };
    const auto mayGoOn = [&] {
        PollEvents(game);
        return !game.job.MustStop();
    };
    return PrintPages(document, range.Count(), draw, mayGoOn);
}

void ShowRangeEnd(Game& game, const PrintRange& range, PrintEnd end, const std::string& error) {
    switch (end) {
        case PrintEnd::Printed:
            game.prompts.Show("Printed" + Str(range.Count()) + " puzzles from file:\r\n" + range.path,
                              "vbinformation+vbok");
            break;
        case PrintEnd::Failed:
            ShowPrintError(game, error);
            break;
        case PrintEnd::Cancelled:
            game.window.SetText(WindowText::Status, "Printing cancelled");
            break;
    }
}

/// Prints the range and brings the puzzle that was current back.
void PrintFromFile(Game& game, const PrintRange& range) {
    const Collection before = game.collection;
    auto document = BeginDocument(game);
    if (!document) return;
    PrintEnd end = PrintEnd::Failed;
    bool replaced = false;
    {
        const BusyPointer busy(game);
        const Job job(game, "Printing");
        end = PrintRangePages(game, range, *document);
        replaced = game.job.Superseded();
    }
    const std::string error = end == PrintEnd::Failed ? document->Error() : "";
    // What was not printed to its end goes away before anything is said about it.
    document.reset();
    game.job.TakeBackCancel();
    if (game.job.Ending()) return;
    // Another puzzle that the player has gone to meanwhile is the current one now, and an imported one was not touched.
    const bool reload = !replaced && before.PuzzleNumber >= 1 && before.importedFrom.empty();
    if (reload) LoadPuzzle(game, before.CollectionPath, before.PuzzleNumber);
    ShowRangeEnd(game, range, end, error);
}

void TellNoPuzzles(Game& game, const std::string& path) {
    game.prompts.Show("No puzzles in this file: " + path, "vbcritical+vbok");
}

}  // namespace

void mnucopyclippuz_Click(Game& game) {
    CopyPicture(game, RenderMode::Puzzle, "Puzzle copied to clipboard");
}

void mnucopyclipsol_Click(Game& game) {
    CopyPicture(game, RenderMode::Solution, "Solution copied to clipboard");
}

void mnusavepuzpicture_Click(Game& game) {
    SavePicture(game, RenderMode::Puzzle);
}

void mnusavesolpicture_Click(Game& game) {
    SavePicture(game, RenderMode::Solution);
}

void mnuprintcurrent_Click(Game& game) {
    if (!CanPrintCurrent(game)) return;
    if (game.prompts.Show("Print Current Puzzle and its Solution?", "vbquestion+vbyesno") != kYes) return;
    auto document = BeginDocument(game);
    if (!document) return;
    PrintEnd end = PrintEnd::Failed;
    {
        const BusyPointer busy(game);
        const auto draw = [&](int, Surface& page, const Sheet& sheet) {
            DrawPage(CurrentPage(game), game.options.PrintLineWidth, page, sheet.printable);
        };
        end = PrintPages(*document, 1, draw, WithoutEnd);
    }
    const std::string error = document->Error();
    document.reset();
    if (end == PrintEnd::Printed) {
        game.prompts.Show("Printed", "vbinformation+vbok");
    } else {
        ShowPrintError(game, error);
    }
}

void mnuprintpreview_Click(Game& game) {
    if (!CanPrintCurrent(game)) return;
    game.printers.Preview(CurrentPrinter(game), [&game](Surface& page, const Surface::Area& printable) {
        DrawPage(CurrentPage(game), game.options.PrintLineWidth, page, printable);
    });
}

void control27_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    PrintRequest request;
    request.collection = game.collection.CollectionPath;
    if (!game.questions.AskPrint(request) || game.job.BusyFlag() || game.job.Ending()) return;
    PrintFromFile(game, {request.collection, RoundedVal(request.first), RoundedVal(request.last)});
}

void Form5_Activate(Game& game, PrintRequest& request) {
    request.printers = game.printers.Names();
    request.printer = CurrentPrinter(game);
    request.puzzleCount = CountPuzzles(game, request.collection);
    request.first = "1";
    request.last = NumText(request.puzzleCount);
}

void Form5_gf1_Click(Game& game, PrintRequest& request) {
    const std::string path = PickFile(game, {"Select a Puzzle file to print", "*.tdw;*.txt;*.dat", "Tidewalk Files",
                                             game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    request.collection = path;
    request.puzzleCount = CountPuzzles(game, path);
    request.last = NumText(request.puzzleCount);
    if (request.puzzleCount == 0) TellNoPuzzles(game, path);
}

bool Form5_Command1_Click(Game& game, PrintRequest& request) {
    game.printerName = request.printer;
    request.puzzleCount = CountPuzzles(game, request.collection);
    if (request.puzzleCount == 0) {
        TellNoPuzzles(game, request.collection);
        return false;
    }
    const int start = RoundedVal(request.first);
    const int end = RoundedVal(request.last);
    if (end < start || start < 1 || end > request.puzzleCount) {
        game.prompts.Show("Incorrect start or end puzzle number", "vbcritical+vbok");
        return false;
    }
    return true;
}

}  // namespace tidewalk
