// SPDX-License-Identifier: MIT
#include "model/read_grid_file.h"

#include <string_view>
#include <vector>

#include "model/job.h"
#include "model/navigation.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/work_areas.h"

namespace tidewalk {

namespace {

void TakeGrid(Game& game, const GridText& grid) {
    ResetWorkAreas(game);
    game.Rows = grid.rows;
    game.Cols = grid.cols;
    NumberNewBoard(game);
    game.NumberTotal = 0;
    for (int row = 1; row <= grid.rows; ++row) {
        for (int col = 1; col <= grid.cols; ++col) {
            const int number = grid.At(row, col);
            game.IslandGrid(row, col) = game.GivenGrid(row, col) = number;
            game.NumberTotal += number;
        }
    }
}

/// The lines of `text`, whatever ends them. Empty ones at the end are no rows: nearly every copied text ends in one.
std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.emplace_back(line);
    }
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

/// Writes the lines of a grid that fits a board; false for any other text.
bool WriteGrid(Game& game, const std::string& path, const std::vector<std::string>& lines) {
    constexpr auto kLongest = static_cast<std::size_t>(kMaxSide);
    if (lines.empty() || lines.size() > kLongest) return false;
    if (lines.front().empty() || lines.front().size() > kLongest) return false;
    game.files.CloseAll();
    try {
        game.files.Open(1, path, FileMode::Output);
        for (const std::string& line : lines)
            game.files.Print(1, line);
        game.files.Close(1);
    } catch (const FileError&) {
        game.files.CloseAll();
        return false;
    }
    return true;
}

}  // namespace

int ReportGridResult(Game& game, GridResult result, const std::string& path, int number) {
    constexpr std::string_view kStyle = "vbcritical+vbok";
    if (result == GridResult::Read) return NoValue;
    if (result == GridResult::NotFound) game.prompts.Show("Grid" + Str(number) + " not found", kStyle);
    if (result == GridResult::Failed) game.prompts.Show("Error reading grid from:\r\n" + path, kStyle);
    return YesValue;
}

int ReadGridFile(Game& game, const std::string& path, int number) {
    GridText grid;
    const GridResult result = ReadGridText(game.files, path, number, grid);
    if (ReportGridResult(game, result, path, number) == YesValue) return YesValue;
    TakeGrid(game, grid);
    FitBoard(game);
    game.board.RedrawBoard(game, false);
    ShowPuzzleLabels(game, path);
    game.window.SetText(Control::pb, "Edited puzzle read");
    return NoValue;
}

void mnuimport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path =
        PickFile(game, {"Select a grid file", "*.txt", "Tide Files", game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    ReadGridFile(game, path, 1);
    game.window.SetText(Control::pb, "File " + FileNameOf(path) + " imported");
}

void mnupastepuzzle_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string workFile = "tempin.txt";
    const std::string text = game.clipboard.Text();
    if (Trim(text).empty() || !WriteGrid(game, workFile, LinesOf(text))) {
        game.window.SetText(Control::pb, "Error importing puzzle");
        return;
    }
    // The reader has said so itself if it does not take the grid.
    ReadGridFile(game, workFile, 1);
    game.window.SetText(Control::pb, "Puzzle imported");
}

}  // namespace tidewalk
