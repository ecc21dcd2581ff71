// SPDX-License-Identifier: MIT
#include "solver/auto_solve.h"

#include <memory>

#include "board/show_board.h"
#include "game/file_work.h"
#include "game/job.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/puzzle_record.h"
#include "solver/solve_puzzle.h"
#include "solver/valid_solution.h"
#include "techniques/show_guide.h"

namespace tidewalk {

namespace {

enum class Outcome { Solved, Failed, Stopped, Superseded };

/// Solves the puzzle on the board and puts what the solver found there.
Outcome Solve(Game& game) {
    const Job job(game, "AutoSolve");
    game.window.SetText(WindowText::Status, "Auto solving ...");
    LetEventsThrough(game);
    const auto solver = std::make_unique<SolverBoard>(game.board.puzzle);
    const SolveResult result = SolvePuzzle(*solver, {game.board.puzzle.CellCount()}, Watched(game, *solver));
    // Who loaded another puzzle in the middle wants to see nothing more of this one.
    if (game.job.Superseded()) return Outcome::Superseded;
    ShowWorkLists(game, *solver);
    const Puzzle solved = PuzzleOf(*solver);
    if (!result.Solved() && game.job.CancelFlag()) return Outcome::Stopped;
    if (!result.Solved() || !CheckLinkTotals(solved)) return Outcome::Failed;
    game.board.puzzle = solved;
    game.board.OpenNeighbours = solver->OpenNeighbours;
    return Outcome::Solved;
}

/// Brings the puzzle back as it was and says that it could not be solved, with what the status line has to add.
void GiveUp(Game& game, const std::string& status) {
    // An earlier load that failed may have left its file open, and this one must not fail for that.
    CloseFiles(game);
    const Puzzle numbers = WithoutLinks(game.board.puzzle);
    if (!game.collection.importedFrom.empty()) {
        TakeImported(game, numbers, game.collection.importedFrom);
    } else if (!LoadPuzzle(game, game.collection.CollectionPath, game.collection.PuzzleNumber)) {
        game.board.puzzle = numbers;
        game.board.OpenNeighbours.Fill({});
        RedrawBoard(game, false);
    }
    game.window.SetText(WindowText::Status, status.empty() ? game.board.playNote : status);
    game.window.SetPointer(Pointer::Default);
    game.prompts.Show("Unable to solve\r\nPlease check puzzle layout", "vbcritical+vbok");
}

/// What is said of a solution that its record holds only in part.
std::string SolvedButCutShort(const Game& game) {
    const bool imported = !game.collection.importedFrom.empty();
    const std::string puzzle = imported ? "Imported puzzle" : "Puzzle#" + Str(game.collection.PuzzleNumber);
    return "Solved. " + puzzle +
           " is written without its bridges between touching islands, as a collection has no room for them";
}

void ShowAndWriteSolution(Game& game) {
    game.window.SetText(WindowText::Status, "Solved");
    RedrawBoard(game, true);
    const std::string file = SolutionPath(game.collection.CollectionPath);
    CloseFiles(game);
    try {
        WritePuzzleRecord(file, game.board.puzzle, WriteMode::Replace, WaitingFor(game, file));
        if (!RecordHoldsBridges(game.board.puzzle)) game.window.SetText(WindowText::Status, SolvedButCutShort(game));
    } catch (const FileError& error) {
        game.window.SetText(WindowText::Status, std::string("Solved, but not written: ") + error.what());
    }
}

}  // namespace

void mnuautosol_Click(Game& game) {
    if (RefuseWhileBusy(game) || RefuseWithoutPuzzle(game)) return;
    EndGuidance(game);
    const BusyPointer pointer(game);
    const Outcome outcome = Solve(game);
    if (game.job.Ending()) return;
    if (outcome == Outcome::Failed) GiveUp(game, "");
    // Who reads the message then knows that the layout may be right.
    if (outcome == Outcome::Stopped) GiveUp(game, "AutoSolve was stopped before it was done");
    if (outcome == Outcome::Solved) ShowAndWriteSolution(game);
    if (outcome == Outcome::Superseded) game.window.SetText(WindowText::Status, "");
}

std::string SolutionPath(const std::string& collectionPath) {
    const std::size_t dot = collectionPath.rfind('.');
    if (dot == std::string::npos) return "-solution" + collectionPath;
    // A dot in a folder's name ends no file name.
    if (collectionPath.size() - dot > FileNameOf(collectionPath).size()) return collectionPath + "-solution";
    return collectionPath.substr(0, dot) + "-solution" + collectionPath.substr(dot);
}

}  // namespace tidewalk
