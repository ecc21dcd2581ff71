// SPDX-License-Identifier: MIT
#include "generator/new_puzzle.h"

#include "generator/create_puzzle.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/work_areas.h"
#include "model/write_puzzle_record.h"

namespace tidewalk {

namespace {

constexpr const char* kPuzzleFile = "temp.txt";
constexpr const char* kCanceling = " Canceling...";
constexpr const char* kFailed = "Could not create new puzzle";

/// Where a puzzle lies.
struct PuzzlePlace {
    std::string path;
    int number;
};

/// How the command ended.
enum class Outcome {
    Created,
    Failed,     ///< the message tells why
    Abandoned,  ///< the window was closed, or another puzzle was loaded: there is nothing left to do
};

/// Writes the new puzzle to its file and loads it from there.
Outcome WriteAndLoad(Game& game, std::string& message) {
    try {
        WritePuzzleRecord(game, kPuzzleFile, 0);
    } catch (const FileError& error) {
        game.files.CloseAll();
        message += "\r\n" + std::string(error.what());
        return Outcome::Failed;
    }
    return LoadPuzzle(game, kPuzzleFile, 1) == 0 ? Outcome::Created : Outcome::Failed;
}

/// Makes the puzzle and makes it the current one, or loads the one `before` again.
Outcome MakePuzzle(Game& game, int rows, int cols, const PuzzlePlace& before, std::string& message) {
    const Job job(game);
    game.Rows = rows;
    game.Cols = cols;
    game.window.SetText(Control::pb, " Creating" + Str(rows) + "x" + NumText(cols) + " puzzle ...");
    game.pictures.SetEnabled(false);
    game.pictures.Picture1().Clear(game.Picture1BackColor);
    int grade = 0;
    int failed = 0;
    CreatePuzzle(game, grade, failed);
    if (game.ending || job.Superseded()) return Outcome::Abandoned;
    Outcome outcome = failed == 0 ? WriteAndLoad(game, message) : Outcome::Failed;
    if (outcome == Outcome::Failed) ReloadPuzzle(game, before.path, before.number);
    return outcome;
}

/// Tells how it ended; the board is the player's again afterwards.
void Report(Game& game, Outcome outcome, const std::string& message) {
    switch (outcome) {
        case Outcome::Created:
            game.pictures.SetEnabled(true);
            game.window.SetText(Control::pb, "Puzzle created");
            game.events.DoEvents();
            return;
        case Outcome::Failed:
            game.pictures.SetVisible(true);
            game.window.SetText(Control::pb, kFailed);
            game.prompts.Show(message, "vbinformation+vbok");
            game.events.DoEvents();
            break;
        case Outcome::Abandoned:
            game.window.SetText(Control::pb, "");
            break;
    }
    game.pictures.SetEnabled(true);
}

}  // namespace

WantedSize ParseGridSize(std::string_view text) {
    const std::string size = LowerCase(Trim(text));
    if (size.empty()) return {true, 0, 0};
    const std::size_t x = size.find('x');
    if (x == std::string::npos) return {false, RoundedVal(size), RoundedVal(size)};
    return {false, RoundedVal(std::string_view(size).substr(0, x)), RoundedVal(std::string_view(size).substr(x + 1))};
}

bool IsCreatableSize(int rows, int cols) {
    return rows >= kMinSide && rows <= kMaxSide && cols >= kMinSide && cols <= kMaxSide;
}

void cmdnew1_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const PuzzlePlace before{game.CollectionPath, game.PuzzleNumber};
    WantedSize size = ParseGridSize(game.window.Text(Control::GridSize));
    if (size.random) {
        size.rows = DrawRandomSide(game);
        size.cols = DrawRandomSide(game);
    }
    if (!IsCreatableSize(size.rows, size.cols)) {
        game.prompts.Show("Puzzle size must be 7 to " + Str(kMaxSide), "vbcritical+vbok");
        return;
    }
    Outcome outcome = Outcome::Failed;
    std::string message = kFailed;
    {
        const BusyPointer pointer(game);
        outcome = MakePuzzle(game, size.rows, size.cols, before, message);
    }
    Report(game, outcome, message);
}

void mnunewpuzx_Click(Game& game) {
    cmdnew1_Click(game);
}

void cmdcancel_Click(Game& game) {
    if (game.window.Text(Control::pb) == kCanceling) return;
    if (!JobRuns(game)) {
        game.window.SetText(Control::pb, "");
        return;
    }
    game.CancelFlag = YesValue;
    game.window.SetText(Control::pb, kCanceling);
    game.events.DoEvents();
}

void GridSize_MouseDown(Game& game, MouseButton button) {
    if (button == MouseButton::Right) game.window.SetText(Control::GridSize, "");
}

void ShowEmptyBoard(Game& game) {
    ResetWorkAreas(game);
    NumberNewBoard(game);
    game.board.LayoutBoard(game);
    game.board.RedrawBoard(game, false);
}

void ReloadPuzzle(Game& game, const std::string& path, int number) {
    game.files.CloseAll();
    if (LoadPuzzle(game, path, number) == 0) return;
    game.files.CloseAll();
    ShowEmptyBoard(game);
}

}  // namespace tidewalk
