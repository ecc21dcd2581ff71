// SPDX-License-Identifier: MIT
#include "model/number_grid.h"

#include <algorithm>

#include "model/collection_edit.h"
#include "model/job.h"
#include "model/navigation.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/read_grid_file.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

FileRequest GridRequest(const Game& game, std::string title, FileRequest::Mode mode) {
    return {std::move(title), "*.grd;*.txt", "Grid Files", game.AppFolder, mode};
}

/// Writes the grid to `path`; says why when that fails.
bool WriteGridFile(Game& game, const NumberGrid& grid, const std::string& path) {
    try {
        ReplaceFile(path, [&](std::ostream& out) { out << grid.Text(); });
    } catch (const FileError& error) {
        game.prompts.Show("The grid could not be written:\r\n" + std::string(error.what()), "vbcritical+vbok");
        return false;
    }
    return true;
}

}  // namespace

void NumberGrid::Resize(int rows, int cols) {
    rows_ = std::clamp(rows, 1, kMaxSide);
    cols_ = std::clamp(cols, 1, kMaxSide);
    for (int row = 1; row <= kMaxSide; ++row) {
        for (int col = 1; col <= kMaxSide; ++col) {
            if (row > rows_ || col > cols_) numbers_(row, col) = 0;
        }
    }
    MoveTo(cursor_.row, cursor_.col);
}

void NumberGrid::Clear() {
    numbers_.Fill(0);
    MoveTo(1, 1);
}

void NumberGrid::MoveTo(int row, int col) {
    cursor_ = {std::clamp(row, 1, rows_), std::clamp(col, 1, cols_)};
}

bool NumberGrid::Type(char key) {
    const bool isIsland = key >= '1' && key <= '8';
    if (!isIsland && key != '0' && key != '.' && key != ' ') return false;
    numbers_(cursor_.row, cursor_.col) = isIsland ? key - '0' : 0;
    if (cursor_.col < cols_) {
        MoveBy(0, 1);
    } else if (cursor_.row < rows_) {
        MoveTo(cursor_.row + 1, 1);
    }
    return true;
}

void NumberGrid::Backspace() {
    // In the last cell the cursor had nowhere to go on to: what was typed there is still under it.
    const bool isLast = cursor_.row == rows_ && cursor_.col == cols_;
    if (!isLast || numbers_(cursor_.row, cursor_.col) == 0) {
        if (cursor_.col > 1) {
            MoveBy(0, -1);
        } else if (cursor_.row > 1) {
            MoveTo(cursor_.row - 1, cols_);
        }
    }
    Delete();
}

void NumberGrid::Take(const GridText& grid) {
    Clear();
    Resize(grid.rows, grid.cols);
    for (int row = 1; row <= rows_; ++row) {
        for (int col = 1; col <= cols_; ++col)
            numbers_(row, col) = grid.At(row, col);
    }
}

std::string NumberGrid::Text() const {
    std::string text = "#" + Format(rows_, "00") + Format(cols_, "00") + "\r\n";
    for (int row = 1; row <= rows_; ++row) {
        for (int col = 1; col <= cols_; ++col)
            text += At(row, col) > 0 ? NumText(At(row, col)) : ".";
        text += "\r\n";
    }
    return text;
}

bool LoadNumberGrid(Game& game, NumberGrid& grid) {
    const std::string path = PickFile(game, GridRequest(game, "Select a grid file", FileRequest::Mode::Open));
    if (path.empty()) return false;
    // The program's numbered files may be in use by a job.
    NumberedFiles files;
    GridText text;
    if (ReportGridResult(game, ReadGridText(files, path, 1, text), path, 1) == YesValue) return false;
    grid.Take(text);
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
    const std::string workFile = "tempeditpuzzle.txt";
    return WriteGridFile(game, grid, workFile) && ReadGridFile(game, workFile, 1) == NoValue;
}

void EditCurrentPuzzle(const Game& game, NumberGrid& grid) {
    GridText text;
    text.rows = game.Rows;
    text.cols = game.Cols;
    // The numbers as given: a job may be counting the others down.
    for (int row = 1; row <= text.rows; ++row) {
        std::string& line = text.lines.emplace_back();
        for (int col = 1; col <= text.cols; ++col) line += NumText(std::max(game.GivenGrid(row, col), 0));
    }
    grid.Take(text);
}

}  // namespace tidewalk
