// SPDX-License-Identifier: MIT
#include "solver/auto_solve.h"

#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/write_puzzle_record.h"
#include "solver/solve_puzzle.h"
#include "solver/valid_solution.h"

namespace tidewalk {

namespace {

enum class Outcome { Solved, Failed, Superseded };

/// Takes the islands on the board for the numbers to solve; returns how many there are.
int TakeGivenNumbers(Game& game) {
    int islands = 0;
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const int number = game.IslandAt(id);
        game.GivenGrid(game.CellRow[id], game.CellCol[id]) = number > 0 ? number : -1;
        if (number > 0) ++islands;
    }
    return islands;
}

Outcome Solve(Game& game) {
    const Job job(game);
    game.window.SetText(Control::pb, "Auto solving ...");
    LetEventsThrough(game);
    if (job.Superseded()) return Outcome::Superseded;
    game.TrialLimit = 0;
    int trials = 0;
    const int failed = SolvePuzzle(game, game.CellCount, trials);
    if (job.Superseded()) return Outcome::Superseded;
    return failed == YesValue || CheckLinkTotals(game) == YesValue ? Outcome::Failed : Outcome::Solved;
}

/// Takes everything that the solver left off the board and leaves the numbers.
void ShowNumbersAlone(Game& game) {
    RestoreIslands(game);
    game.LinkList.Clear(game.Cols);
    game.OpenNeighbours.Fill({});
    game.CrossGrid.Fill(Cross::Free);
    game.ConnectedList.Fill({});
    game.board.RedrawBoard(game, false);
}

void GiveUp(Game& game) {
    // An earlier load that failed may have left its file open, and this one must not fail for that.
    game.files.CloseAll();
    if (LoadPuzzle(game, game.CollectionPath, game.PuzzleNumber) == YesValue) ShowNumbersAlone(game);
    game.window.SetText(Control::pb, "");
    game.window.SetPointer(Pointer::Default);
    game.prompts.Show("Unable to solve\r\nPlease check puzzle layout", "vbcritical+vbok");
}

void ShowAndWriteSolution(Game& game) {
    game.window.SetText(Control::pb, "Solved");
    game.board.ShowSolution(game);
    try {
        WritePuzzleRecord(game, SolutionPath(game.CollectionPath), 0);
    } catch (const FileError& error) {
        game.files.CloseAll();
        game.window.SetText(Control::pb, std::string("Solved, but not written: ") + error.what());
    }
}

}  // namespace

void mnuautosol_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    if (game.CellCount == 0) {
        game.prompts.Show("There is no puzzle to solve", "vbinformation+vbok");
        return;
    }
    game.window.SetPointer(Pointer::Busy);
    if (TakeGivenNumbers(game) == 0) {
        game.window.SetPointer(Pointer::Default);
        game.prompts.Show("Set the puzzle first", "vbinformation+vbok");
        return;
    }
    const Outcome outcome = Solve(game);
    if (game.ending) return;
    if (outcome == Outcome::Failed) GiveUp(game);
    if (outcome == Outcome::Solved) ShowAndWriteSolution(game);
    // Who loaded another puzzle in the middle wants to see nothing more of this one.
    if (outcome == Outcome::Superseded) game.window.SetText(Control::pb, "");
    game.window.SetPointer(Pointer::Default);
}

std::string SolutionPath(const std::string& collectionPath) {
    const std::size_t dot = collectionPath.rfind('.');
    if (dot == std::string::npos) return "-solution" + collectionPath;
    return collectionPath.substr(0, dot) + "-solution" + collectionPath.substr(dot);
}

}  // namespace tidewalk
