// SPDX-License-Identifier: MIT
#include "model/import_grid.h"

#include <fstream>
#include <string_view>
#include <vector>

#include "board/keep_play.h"
#include "game/file_work.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "model/characters.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

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
bool WriteLines(const std::string& path, const std::vector<std::string>& lines) {
    if (lines.empty() || lines.size() > static_cast<std::size_t>(kMaxSide)) return false;
    if (lines.front().empty() || CharacterCount(lines.front()) > kMaxSide) return false;
    std::ofstream file(path, std::ios::binary);
    for (const std::string& line : lines)
        file << line << kLineEnd;
    file.close();
    return !file.fail();
}

}  // namespace

bool ReportGridResult(Game& game, GridResult result, const std::string& path, int number) {
    constexpr std::string_view kStyle = "vbcritical+vbok";
    if (result == GridResult::NotFound) game.prompts.Show("Grid" + Str(number) + " not found", kStyle);
    if (result == GridResult::Failed) game.prompts.Show("Error reading grid from:\r\n" + path, kStyle);
    return result == GridResult::Read;
}

bool ReadGridFile(Game& game, const std::string& path, int number) {
    Puzzle puzzle;
    CloseFiles(game);
    if (!ReportGridResult(game, ReadGridFrom(path, number, puzzle), path, number)) return false;
    TakeImported(game, puzzle, path);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "Edited puzzle read"));
    return true;
}

void mnuimport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path =
        PickFile(game, {"Select a grid file", "*.txt", "Tide Files", game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    ReadGridFile(game, path, 1);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "File " + FileNameOf(path) + " imported"));
}

void mnupastepuzzle_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string workFile = WorkFile(game, "tempin.txt");
    const std::string text = game.clipboard.Text();
    if (Trim(text).empty() || !WriteLines(workFile, LinesOf(text))) {
        game.window.SetText(WindowText::Status, "Error importing puzzle");
        return;
    }
    // The reader has said so itself if it does not take the grid.
    ReadGridFile(game, workFile, 1);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "Puzzle imported"));
}

}  // namespace tidewalk
