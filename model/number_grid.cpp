// SPDX-License-Identifier: MIT
#include "model/number_grid.h"

#include <algorithm>

#include "game/file_work.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "model/file_error.h"
#include "model/import_grid.h"
#include "model/paths.h"
#include "model/plain_grid.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

FileRequest GridRequest(const Game& game, std::string title, FileRequest::Mode mode) {
    return {std::move(title), "*.grd;*.txt", "Grid Files", game.AppFolder, mode, "grd"};
}

/// Writes the grid to `path`; says why when that fails.
bool WriteGridFile(Game& game, const NumberGrid& grid, const std::string& path) {
    try {
        ReplaceFile(path, [&](std::ostream& out) { out << MarkedGrid(grid.Numbers()); });
    } catch (const FileError& error) {
        game.prompts.Show("The grid could not be written:\r\n" + std::string(error.what()), "vbcritical+vbok");
        return false;
    }
    return true;
}

}  // namespace

void NumberGrid::Resize(int rows, int cols) {
    Puzzle resized({std::clamp(rows, 1, kMaxSide), std::clamp(cols, 1, kMaxSide)});
    for (CellNumber id = 1; id <= resized.CellCount(); ++id)
        resized.SetIsland(id, At(resized.CellRow(id), resized.CellCol(id)));
    puzzle_ = resized;
    MoveTo(cursor_.row, cursor_.col);
}

void NumberGrid::Clear() {
    puzzle_ = Puzzle(puzzle_.Size());
    MoveTo(1, 1);
}

void NumberGrid::MoveTo(int row, int col) {
    cursor_ = {std::clamp(row, 1, Rows()), std::clamp(col, 1, Cols())};
}

bool NumberGrid::Type(char key) {
    const bool isIsland = key >= '1' && key <= '8';
    if (!isIsland && key != '0' && key != '.' && key != ' ') return false;
    Set(isIsland ? key - '0' : 0);
    if (cursor_.col < Cols()) {
        MoveBy(0, 1);
    } else if (cursor_.row < Rows()) {
        MoveTo(cursor_.row + 1, 1);
    }
    return true;
}

void NumberGrid::Backspace() {
    // In the last cell the cursor had nowhere to go on to: what was typed there is still under it.
    const bool isLast = cursor_.row == Rows() && cursor_.col == Cols();
    if (!isLast || At(cursor_.row, cursor_.col) == 0) {
        if (cursor_.col > 1) {
            MoveBy(0, -1);
        } else if (cursor_.row > 1) {
            MoveTo(cursor_.row - 1, Cols());
        }
    }
    Delete();
}

void NumberGrid::Take(const Puzzle& puzzle) {
    puzzle_ = WithoutLinks(puzzle);
    cursor_ = {1, 1};
    // Before the first load the puzzle on the board has no cells at all.
    Resize(puzzle.Rows, puzzle.Cols);
}

bool LoadNumberGrid(Game& game, NumberGrid& grid) {
    const std::string path = PickFile(game, GridRequest(game, "Select a grid file", FileRequest::Mode::Open));
    if (path.empty()) return false;
    const int number = AskForGrid(game, path, FileNameOf(path)).number;
    FoundGrid found;
    if (number == 0 || !ReportGridResult(game, ReadGridFrom(path, number, found), path, number)) return false;
    grid.Take(found.puzzle);
    return true;
}

bool SaveNumberGrid(Game& game, const NumberGrid& grid) {
    std::string path = PickFile(game, GridRequest(game, "Save the grid", FileRequest::Mode::Save));
    if (path.empty()) return false;
    AddExtension(path, "grd");
    return ConfirmOverwrite(game, path) && WriteGridFile(game, grid, path);
}

bool UseNumberGrid(Game& game, const NumberGrid& grid) {
    if (RefuseWhileBusy(game)) return false;
    const std::string workFile = WorkFile(game, "tempeditpuzzle.txt");
    return WriteGridFile(game, grid, workFile) && ReadGridFile(game, workFile, 1);
}

void EditCurrentPuzzle(const Game& game, NumberGrid& grid) {
    grid.Take(game.board.puzzle);
}

}  // namespace tidewalk
