// SPDX-License-Identifier: MIT
#include "board/copy_and_print.h"

#include <algorithm>

#include "board/render_puzzle.h"
#include "model/collection_edit.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// The puzzle as it is to be drawn. While a job runs the islands hold what they still need, so the given numbers are
/// taken.
std::unique_ptr<Puzzle> PuzzleToDraw(const Game& game) {
    auto puzzle = std::make_unique<Puzzle>(game);
    if (JobRuns(game)) puzzle->IslandGrid = puzzle->GivenGrid;
    return puzzle;
}

void CopyPicture(Game& game, RenderMode mode, std::string_view kind, const std::string& done) {
    const auto puzzle = PuzzleToDraw(game);
    const RenderRequest request =
        PictureRequest(mode, PrintTitle(kind, game.PuzzleNumber, game.CollectionPath), game.PrintLineWidth);
    const bool copied =
        game.clipboard.SetPicture([&](Surface& surface) { return RenderPuzzle(*puzzle, surface, request); });
    game.window.SetText(Control::pb, copied ? done : "The picture could not be copied to clipboard");
}

void DrawPage(const Puzzle& puzzle, int number, const std::string& path, int lineWidth, Surface& page,
              const Surface::Area& printable) {
    RenderPuzzle(puzzle, page, PageRequest(PrintTitle("Puzzle#", number, path), lineWidth, printable));
}

/// The printer for the next document: the last choice as long as it is there, else the system's.
std::string CurrentPrinter(Game& game) {
    const std::vector<std::string> names = game.printers.Names();
    if (std::find(names.begin(), names.end(), game.printerName) != names.end()) return game.printerName;
    return names.empty() ? "" : names.front();
}

void ShowPrintError(Game& game, const std::string& reason) {
    game.prompts.SystemBox("Printing failed:\r\n" + reason, SystemButtons::Ok);
}

/// Asks for the name of a PDF file; "" when the player thinks better of it, or of overwriting a file.
std::string AskPdfName(Game& game) {
    std::string path =
        PickFile(game, {"Print to a PDF file", "*.pdf", "PDF Files", game.AppFolder, FileRequest::Mode::Save});
    if (path.empty()) return path;
    const std::string ending = ".pdf";
    if (path.size() < ending.size() ||
        LowerCase(path).compare(path.size() - ending.size(), ending.size(), ending) != 0) {
        path += ending;
    }
    return ConfirmOverwrite(game, path) ? path : "";
}

/// Begins a document on the current printer. Nothing comes back when there is none to be: the player has said so, or
/// was told the reason.
std::unique_ptr<PrintDocument> BeginDocument(Game& game) {
    const std::string printer = CurrentPrinter(game);
    std::string file;
    if (printer == kPdfPrinter) {
        file = AskPdfName(game);
        if (file.empty()) return nullptr;
    }
    std::string error;
    auto document = game.printers.Begin(printer, file, error);
    if (!document) ShowPrintError(game, error);
    return document;
}

/// True when there is a puzzle that may be printed now; else the player is told.
bool CanPrintCurrent(Game& game) {
    if (RefuseWhileBusy(game)) return false;
    if (game.PuzzleNumber >= 1) return true;
    game.prompts.Show("No puzzle to print", "vbinformation+vbok");
    return false;
}

/// How the printing of a range ended.
enum class RangeEnd { Printed, Cancelled, Failed };

struct PrintRange {
    std::string path;
    int start = 1;
    int end = 1;
    int Count() const { return end - start + 1; }
};

/// Draws a page for each puzzle of the range; one that cannot be read leaves it empty. The current puzzle is not
/// touched: each page has a puzzle of its own. `error` tells why the printing failed.
RangeEnd PrintPages(Game& game, const PrintRange& range, PrintDocument& document, std::string& error) {
    const auto puzzle = std::make_unique<Puzzle>();
    for (int done = 0; done < range.Count(); ++done) {
        PollEvents(game);
        if (CancelRequested(game)) return RangeEnd::Cancelled;
        game.window.SetProgress(done, range.Count());
        const int number = range.start + done;
        // The page comes before the puzzle, so that the last one is not followed by an empty sheet.
        if (done > 0 && !document.NewPage()) {
            error = document.Error();
            return RangeEnd::Failed;
        }
        if (ReadPuzzle(game.files, range.path, number, *puzzle)) {
            DrawPage(*puzzle, number, range.path, game.PrintLineWidth, document.Page(), document.Printable());
        }
    }
    if (document.End()) return RangeEnd::Printed;
    error = document.Error();
    return RangeEnd::Failed;
}

void ShowRangeEnd(Game& game, const PrintRange& range, RangeEnd end, const std::string& error) {
    if (end == RangeEnd::Printed) {
        game.prompts.Show("Printed" + Str(range.Count()) + " puzzles from file:\r\n" + range.path,
                          "vbinformation+vbok");
    } else if (end == RangeEnd::Failed) {
        ShowPrintError(game, error);
    } else {
        game.window.SetText(Control::pb, "Printing cancelled");
    }
}

/// Prints the range and brings the puzzle that was current back.
void PrintFromFile(Game& game, const PrintRange& range) {
    const std::string oldPath = game.CollectionPath;
    const int oldNumber = game.PuzzleNumber;
    auto document = BeginDocument(game);
    if (!document) return;
    RangeEnd end = RangeEnd::Failed;
    bool replaced = false;
    std::string error;
    {
        const BusyPointer busy(game);
        const Job job(game);
        end = PrintPages(game, range, *document, error);
        replaced = job.Superseded();
    }
    // What was not printed to its end goes away before anything is said about it.
    document.reset();
    game.CancelFlag = NoValue;
    if (game.ending) return;
    // Another puzzle that the player has gone to meanwhile is the current one now.
    if (!replaced && oldNumber >= 1) LoadPuzzle(game, oldPath, oldNumber);
    ShowRangeEnd(game, range, end, error);
}

bool TellNoPuzzles(Game& game, const std::string& path) {
    game.prompts.Show("No puzzles in this file: " + path, "vbcritical+vbok");
    return false;
}

}  // namespace

void mnucopyclippuz_Click(Game& game) {
    CopyPicture(game, RenderMode::Puzzle, "Puzzle#", "Puzzle copied to clipboard");
}

void mnucopyclipsol_Click(Game& game) {
    CopyPicture(game, RenderMode::Solution, "Solution#", "Solution copied to clipboard");
}

void mnuprintcurrent_Click(Game& game) {
    if (!CanPrintCurrent(game)) return;
    if (game.prompts.Show("Print Current Puzzle and its Solution?", "vbquestion+vbyesno") != kYes) return;
    auto document = BeginDocument(game);
    if (!document) return;
    std::string error;
    {
        const BusyPointer busy(game);
        DrawPage(game, game.PuzzleNumber, game.CollectionPath, game.PrintLineWidth, document->Page(),
                 document->Printable());
        if (!document->End()) error = document->Error();
    }
    document.reset();
    if (error.empty()) {
        game.prompts.Show("Printed", "vbinformation+vbok");
    } else {
        ShowPrintError(game, error);
    }
}

void mnuprintpreview_Click(Game& game) {
    if (!CanPrintCurrent(game)) return;
    game.printers.Preview(CurrentPrinter(game), [&game](Surface& page, const Surface::Area& printable) {
        DrawPage(game, game.PuzzleNumber, game.CollectionPath, game.PrintLineWidth, page, printable);
    });
}

void control27_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    Form5Fields fields;
    fields.FileNow = game.CollectionPath;
    game.form5.ShowModal(fields);
    if (fields.Tag != "Y" || JobRuns(game) || game.ending) return;
    PrintFromFile(game, {fields.FileNow, RoundedVal(fields.Text1), RoundedVal(fields.Text2)});
}

void Form5_Activate(Game& game, Form5Fields& fields) {
    fields.printers = game.printers.Names();
    fields.Combo1 = CurrentPrinter(game);
    fields.count = CountLines(game, fields.FileNow);
    fields.Text1 = "1";
    fields.Text2 = NumText(fields.count);
}

void Form5_gf1_Click(Game& game, Form5Fields& fields) {
    const std::string path = PickFile(game, {"Select a Puzzle file to print", "*.tdw;*.txt;*.dat", "Tidewalk Files",
                                             game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    fields.FileNow = path;
    fields.count = CountLines(game, path);
    fields.Text2 = NumText(fields.count);
    if (fields.count == 0) TellNoPuzzles(game, path);
}

bool Form5_Command1_Click(Game& game, Form5Fields& fields) {
    game.printerName = fields.Combo1;
    fields.count = CountLines(game, fields.FileNow);
    if (fields.count == 0) return TellNoPuzzles(game, fields.FileNow);
    const int start = RoundedVal(fields.Text1);
    const int end = RoundedVal(fields.Text2);
    if (end < start || start < 1 || end > fields.count) {
        game.prompts.Show("Incorrect start or end puzzle number", "vbcritical+vbok");
        return false;
    }
    fields.Tag = "Y";
    return true;
}

}  // namespace tidewalk
