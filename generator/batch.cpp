// SPDX-License-Identifier: MIT
#include "generator/batch.h"

#include <functional>

#include "game/file_work.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "generator/grid_size.h"
#include "generator/new_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/puzzle_record.h"

namespace tidewalk {

namespace {

constexpr const char* kJobName = "Creating puzzles";

/// A batch to make.
struct Batch {
    int count;
    std::string path;  ///< the file that the puzzles are appended to
    OrderChoice order;
    std::function<BoardSize()> sizeOfNext;              ///< asked once for every puzzle
    std::function<std::string(int, BoardSize)> status;  ///< the status line for the puzzle of that number
};

/// Keeps the board out of the player's reach and off the screen for as long as it lives.
class FrozenBoard {
 public:
    explicit FrozenBoard(Game& game) : game_(game) {
        game_.pictures.Freeze(true);
        game_.pictures.SetEnabled(false);
    }
    ~FrozenBoard() {
        game_.pictures.Freeze(false);
        game_.pictures.SetEnabled(true);
    }
    FrozenBoard(const FrozenBoard&) = delete;
    FrozenBoard& operator=(const FrozenBoard&) = delete;

 private:
    Game& game_;
};

/// Makes one puzzle of the size, again from the start when another puzzle was loaded in the middle. The record of a
/// failure holds the last one that was tried, which may be a layout without bridges.
Candidate CreateInBatch(Game& game, Job& job, BoardSize size, const PuzzleOrder& order) {
    for (;;) {
        job.Adopt();
        LastCandidate last = CreateInJob(game, size, order);
        if (!game.job.Superseded() || game.job.Ending()) return std::move(last.candidate);
    }
}

/// What came of a batch.
struct BatchResult {
    int written = 0;
    int lacking = 0;       ///< of those that are written: not what was asked for
    std::string failure;   ///< why it could not go on; "" for no such reason
    bool cutTail = false;  ///< a torn record was taken off the file first
};

/// Makes the puzzles and appends each, until all are made, the batch is stopped or the window is closed. Throws
/// FileError when one cannot be written.
void MakePuzzles(Game& game, Job& job, const Batch& batch, BatchResult& result) {
    while (result.written < batch.count) {
        const BoardSize size = batch.sizeOfNext();
        game.window.SetText(WindowText::Status, batch.status(result.written + 1, size));
        game.window.SetProgress(result.written, batch.count);
        const PuzzleOrder order = OrderFor(batch.order, size);
        const Candidate made = CreateInBatch(game, job, size, order);
        if (game.job.Ending() || game.job.StopFlag()) return;
        CloseFiles(game);
        const std::string record = PuzzleRecord(made.created.puzzle);
        result.cutTail |= AppendRecord(batch.path, record, Numbering::Skip, WaitingFor(game, batch.path)).cutTail;
        ++result.written;
        if (!made.fits && AsksForMore(order)) ++result.lacking;
        PollEvents(game);
        if (game.job.Ending() || game.job.StopFlag()) return;
    }
}

/// Runs the batch and gives the player the board back as it was.
BatchResult RunBatch(Game& game, const Batch& batch) {
    BatchResult result;
    const ShownPuzzle before = PuzzleShown(game);
    const BusyPointer pointer(game);
    {
        Job job(game, kJobName);
        game.pictures.Picture().Clear(game.options.BoardBackground());
        game.events.DoEvents();
        const FrozenBoard frozen(game);
        try {
            MakePuzzles(game, job, batch, result);
            if (result.written > 0) SyncCollection(batch.path);
        } catch (const FileError& error) {
            result.failure = error.what();
        }
    }
    if (game.job.Ending()) return result;
    // Another puzzle that the player has gone to meanwhile is the current one now.
    const bool sameCollection = before.collection.CollectionPath == game.collection.CollectionPath &&
                                before.collection.PuzzleNumber == game.collection.PuzzleNumber;
    ShowAgain(game, sameCollection ? before : PuzzleShown(game));
    return result;
}

/// The last line of a message: how many lack what was asked for. "" for none.
std::string LackingText(int lacking) {
    if (lacking == 0) return "";
    return "\r\n" + NumText(lacking) + " of them" + (lacking == 1 ? " lacks" : " lack") + " what was asked for.";
}

/// Tells how the batch ended. `done` is called when all puzzles were written, with the line that ends its message.
void Report(Game& game, const Batch& batch, const BatchResult& result,
            const std::function<void(const std::string& lastLine)>& done) {
    if (game.job.Ending()) return;
    const std::string lacking = LackingText(result.lacking);
    if (!result.failure.empty()) {
        game.prompts.Show("The puzzles could not all be written:\r\n" + result.failure + "\r\n\r\n" +
                              NumText(result.written) + " of" + Str(batch.count) + " puzzles were written." + lacking,
                          "vbcritical+vbok");
    } else if (result.written < batch.count) {
        game.prompts.Show(
            "Created" + Str(result.written) + " of" + Str(batch.count) + " puzzles in file:\r\n" + batch.path + lacking,
            "vbinformation+vbok");
    } else {
        done(lacking);
    }
    game.window.SetText(WindowText::Status, result.cutTail ? TornRecordText(batch.path) : "");
}

bool IsCreatable(int count, BoardSize size) {
    return count >= 1 && IsCreatableSize(size);
}

BoardSize SizeOf(const BatchRequest& request) {
    return {RoundedVal(request.rows), RoundedVal(request.cols)};
}

}  // namespace

bool Form3_Command1_Click(Game& game, BatchRequest& request) {
    if (!IsCreatable(RoundedVal(request.count), SizeOf(request))) {
        game.prompts.Show("Incorrect Number or Size of Puzzles", "vbok+vbcritical");
        return false;
    }
    std::string path(Trim(request.outputFile));
    // A path that ends in a separator names a folder and no file.
    if (FileNameOf(path).empty()) {
        game.prompts.Show("Specify an output file", "vbok+vbcritical");
        return false;
    }
    AddExtension(path, "txt");
    request.outputFile = path;
    return true;
}

void Form3_gf1_Click(Game& game, BatchRequest& request) {
    std::string path = PickFile(game, {"Select an output Puzzle file", "*.txt", "Tidewalk Files", game.AppFolder,
                                       FileRequest::Mode::Save, "txt"});
    if (path.empty()) return;
    AddExtension(path, "txt");
    request.outputFile = path;
}

void mnucreatemany_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    BatchRequest request;
    request.order = ReadOrder(game.choices, OrderedFor::File);
    if (!game.questions.AskBatch(request)) return;
    KeepOrder(game.choices, OrderedFor::File, request.order);
    const int count = RoundedVal(request.count);
    const BoardSize size = SizeOf(request);
    const std::string& path = request.outputFile;
    if (!IsCreatable(count, size)) return;
    const std::string question = "Create" + Str(count) + Str(size.rows) + "x" + NumText(size.cols) + " puzzles\r\n" +
                                 "Output file: " + path + "\r\n\r\nProceed?";
    if (game.prompts.Show(question, "vbquestion+vbyesno") != kYes) return;

    const auto status = [&](int number, BoardSize) { return "Creating puzzle" + Str(number) + " of" + Str(count); };
    const Batch batch{count, path, request.order, [&] { return size; }, status};
    Report(game, batch, RunBatch(game, batch), [&](const std::string& lastLine) {
        game.prompts.Show("Created" + Str(count) + " puzzles in file:\r\n" + path + lastLine, "vbinformation+vbok");
    });
}

void Command4_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    constexpr int kCount = 1200;
    const auto drawSize = [&] { return DrawRandomSize(game.random); };
    const auto status = [](int number, BoardSize size) {
        return Format(size.rows, "00") + Format(size.cols, "00") + Str(number) + " of" + Str(kCount);
    };
    const Batch batch{kCount, "rand1.txt", ReadOrder(game.choices, OrderedFor::File), drawSize, status};
    Report(game, batch, RunBatch(game, batch),
           [&](const std::string& lastLine) { game.prompts.SystemBox("done" + lastLine, SystemButtons::Ok); });
}

void mnustopbatch_Click(Game& game) {
    if (BatchRuns(game)) game.job.Stop();
}

bool BatchRuns(const Game& game) {
    return game.job.BusyFlag() && game.job.Name() == kJobName;
}

}  // namespace tidewalk
