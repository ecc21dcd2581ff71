// SPDX-License-Identifier: MIT
#include "generator/batch.h"

#include <functional>

#include "game/job.h"
#include "game/pick_file.h"
#include "generator/grid_size.h"
#include "generator/new_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

/// A batch to make.
struct Batch {
    int count;
    std::string path;                                   ///< the file that the puzzles are appended to
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

/// Makes one puzzle of the size, again from the start when another puzzle was loaded in the middle.
Puzzle CreateInBatch(Game& game, Job& job, BoardSize size) {
    for (;;) {
        job.Adopt();
        CreatedPuzzle created = CreateInJob(game, size);
        // Whether it was solved is not asked: the record of a failure holds its last layout.
        if (!game.job.Superseded() || game.job.Ending()) return std::move(created.puzzle);
    }
}

/// Makes the puzzles, appends each and counts them in `written`. Throws FileError when one cannot be.
void MakePuzzles(Game& game, Job& job, const Batch& batch, int& written) {
    while (written < batch.count) {
        const BoardSize size = batch.sizeOfNext();
        game.window.SetText(WindowText::Status, batch.status(written + 1, size));
        game.window.SetProgress(written, batch.count);
        const Puzzle puzzle = CreateInBatch(game, job, size);
        if (game.job.Ending()) return;
        CloseFiles(game);
        WritePuzzleRecord(batch.path, puzzle, WriteMode::Append);
        ++written;
        PollEvents(game);
        if (game.job.Ending()) return;
    }
}

/// Runs the batch and gives the player the board back as it was. True when all puzzles were written; a failure is told.
bool RunBatch(Game& game, const Batch& batch) {
    int written = 0;
    std::string failure;
    {
        const BusyPointer pointer(game);
        {
            Job job(game);
            game.pictures.Picture().Clear(game.options.BoardBackground());
            game.events.DoEvents();
            const FrozenBoard frozen(game);
            try {
                MakePuzzles(game, job, batch, written);
            } catch (const FileError& error) {
                failure = error.what();
            }
        }
        if (game.job.Ending()) return false;
        ReloadPuzzle(game, game.collection.CollectionPath, game.collection.PuzzleNumber);
    }
    if (failure.empty()) return true;
    game.prompts.Show("The puzzles could not all be written:\r\n" + failure + "\r\n\r\n" + NumText(written) + " of" +
                          Str(batch.count) + " puzzles were written.",
                      "vbcritical+vbok");
    game.window.SetText(WindowText::Status, "");
    return false;
}

/// A folder with a dot in its name does not count as an extension.
void AddTextExtension(std::string& path) {
    if (FileNameOf(path).find('.') == std::string::npos) path += ".txt";
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
    AddTextExtension(path);
    request.outputFile = path;
    return true;
}

void Form3_gf1_Click(Game& game, BatchRequest& request) {
    std::string path = PickFile(
        game, {"Select an output Puzzle file", "*.txt", "Tidewalk Files", game.AppFolder, FileRequest::Mode::Save});
    if (path.empty()) return;
    AddTextExtension(path);
    request.outputFile = path;
}

void mnucreatemany_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    BatchRequest request;
    if (!game.questions.AskBatch(request)) return;
    const int count = RoundedVal(request.count);
    const BoardSize size = SizeOf(request);
    const std::string& path = request.outputFile;
    if (!IsCreatable(count, size)) return;
    const std::string question = "Create" + Str(count) + Str(size.rows) + "x" + NumText(size.cols) + " puzzles\r\n" +
                                 "Output file: " + path + "\r\n\r\nProceed?";
    if (game.prompts.Show(question, "vbquestion+vbyesno") != kYes) return;

    const auto status = [&](int number, BoardSize) { return "Creating puzzle" + Str(number) + " of" + Str(count); };
    if (!RunBatch(game, {count, path, [&] { return size; }, status})) return;
    game.prompts.Show("Created" + Str(count) + " puzzles in file:\r\n" + path, "vbinformation+vbok");
    game.window.SetText(WindowText::Status, "");
}

void Command4_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    constexpr int kCount = 1200;
    const auto drawSize = [&] { return DrawRandomSize(game.random); };
    const auto status = [](int number, BoardSize size) {
        return Format(size.rows, "00") + Format(size.cols, "00") + Str(number) + " of" + Str(kCount);
    };
    if (!RunBatch(game, {kCount, "rand1.txt", drawSize, status})) return;
    game.prompts.SystemBox("done", SystemButtons::Ok);
    game.window.SetText(WindowText::Status, "");
}

}  // namespace tidewalk
