// SPDX-License-Identifier: MIT
#include "generator/new_puzzle.h"

#include <memory>

#include "board/show_board.h"
#include "game/file_work.h"
#include "game/job.h"
#include "generator/grid_size.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr const char* kCanceling = " Canceling...";
constexpr const char* kFailed = "Could not create new puzzle";

/// How the command ended.
enum class Outcome {
    Created,
    Failed,     ///< the message tells why
    Abandoned,  ///< the window was closed, or another puzzle was loaded: there is nothing left to do
};

/// Writes the new puzzle to its file and loads it from there.
Outcome WriteAndLoad(Game& game, const Puzzle& puzzle, std::string& message) {
    const std::string file = WorkFile(game, "temp.txt");
    CloseFiles(game);
    try {
        WritePuzzleRecord(file, puzzle, WriteMode::Replace, WaitingFor(game, file));
    } catch (const FileError& error) {
        message += "\r\n" + std::string(error.what());
        return Outcome::Failed;
    }
    return LoadPuzzle(game, file, 1) ? Outcome::Created : Outcome::Failed;
}

/// What is said when so many were tried and none was as ordered.
std::string NoneText(int tried) {
    return "\r\nNone of the " + NumText(tried) + " puzzles tried was as ordered.";
}

/// Makes the puzzle and makes it the current one, or loads the one that is current again.
Outcome MakePuzzle(Game& game, BoardSize size, std::string& message) {
    const BusyPointer pointer(game);
    const ShownPuzzle before = PuzzleShown(game);
    const Job job(game, "New Puzzle");
    game.window.SetText(WindowText::Status, " Creating" + Str(size.rows) + "x" + NumText(size.cols) + " puzzle ...");
    game.pictures.SetEnabled(false);
    const PuzzleOrder order = OrderFor(ReadOrder(game.choices, OrderedFor::Board), size);
    const LastCandidate last = CreateInJob(game, size, order);
    if (game.job.Ending() || game.job.Superseded()) return Outcome::Abandoned;
    Outcome outcome = Outcome::Failed;
    if (last.candidate.fits) {
        outcome = WriteAndLoad(game, last.candidate.created.puzzle, message);
    } else if (AsksForMore(order) && !game.job.CancelFlag()) {
        message += NoneText(last.tried);
    }
    if (outcome == Outcome::Failed) ShowAgain(game, before);
    return outcome;
}

/// Tells how it ended; the board is the player's again afterwards.
void Report(Game& game, Outcome outcome, const std::string& message) {
    switch (outcome) {
        case Outcome::Created:
            game.pictures.SetEnabled(true);
            game.window.SetText(WindowText::Status, "Puzzle created");
            game.events.DoEvents();
            return;
        case Outcome::Failed:
            game.pictures.SetVisible(true);
            game.window.SetText(WindowText::Status, kFailed);
            game.prompts.Show(message, "vbinformation+vbok");
            game.events.DoEvents();
            break;
        case Outcome::Abandoned:
            game.window.SetText(WindowText::Status, "");
            break;
    }
    game.pictures.SetEnabled(true);
}

}  // namespace

bool AsksForMore(const PuzzleOrder& order) {
    return order != PuzzleOrder{false, {}, {}};
}

LastCandidate CreateInJob(Game& game, BoardSize size, const PuzzleOrder& order) {
    game.job.TakeBackCancel();
    game.pictures.Picture().Clear(game.options.BoardBackground());
    LayoutNewBoard(game, size);
    const auto solver = std::make_unique<SolverBoard>();
    LastCandidate last;
    const auto showTried = [&] {
        if (last.tried > 0) game.window.SetText(WindowText::Tried, NumText(last.tried) + " tried");
    };
    const MayGoOn mayGoOn = Watched(game, *solver, showTried);
    const int most = AsksForMore(order) ? game.mostCandidates : 1;
    do {
        last.candidate = CreateCandidate(*solver, size, order, game.random, mayGoOn);
        ++last.tried;
    } while (!last.candidate.fits && last.tried < most && !game.job.MustStop());
    game.window.SetText(WindowText::Tried, "");
    ShowWorkLists(game, *solver);
    return last;
}

void cmdnew1_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const WantedSize wanted = ParseGridSize(game.window.Text(WindowText::BoardSize));
    const BoardSize size = SizeOf(wanted, game.random);
    if (!IsCreatableSize(size)) {
        game.prompts.Show("Puzzle size must be 7 to " + Str(kMaxSide), "vbcritical+vbok");
        return;
    }
    std::string message = kFailed;
    const Outcome outcome = MakePuzzle(game, size, message);
    Report(game, outcome, message);
}

void mnunewpuzx_Click(Game& game) {
    cmdnew1_Click(game);
}

void cmdcancel_Click(Game& game) {
    if (game.window.Text(WindowText::Status) == kCanceling) return;
    if (!game.job.BusyFlag()) {
        game.window.SetText(WindowText::Status, "");
        return;
    }
    game.job.Cancel();
    game.window.SetText(WindowText::Status, kCanceling);
    game.events.DoEvents();
}

void GridSize_MouseDown(Game& game, MouseButton button) {
    if (button == MouseButton::Right) game.window.SetText(WindowText::BoardSize, "");
}

}  // namespace tidewalk
