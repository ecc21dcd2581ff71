// SPDX-License-Identifier: MIT
#include "model/import_grid.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string_view>
#include <vector>

#include "board/keep_play.h"
#include "game/file_work.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "model/characters.h"
#include "model/file_error.h"
#include "model/grid_tally.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

/// More are not offered in a list; nobody would find one there.
constexpr std::size_t kMostToChooseFrom = 10'000;

constexpr std::string_view kClipboardName = "Clipboard";

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

/// True when the text begins with a puzzle, or has one with at least 7 rows and columns further on. A smaller one there
/// may be no more than a number that stands alone in a letter.
bool HasPuzzle(const std::string& text) {
    constexpr int kLeastSide = 7;
    std::stringbuf source(text);
    GridReader reader(source, std::string(kClipboardName), kGlance);
    FoundGrid grid;
    for (bool isFirst = true; reader.Next(grid); isFirst = false) {
        const BoardSize size = grid.puzzle.Size();
        if (grid.isPuzzle && (isFirst || std::min(size.rows, size.cols) >= kLeastSide)) return true;
    }
    return false;
}

/// True for the lines of a plain grid that fits a board.
bool FitsBoard(const std::vector<std::string>& lines) {
    return lines.size() <= static_cast<std::size_t>(kMaxSide) && CharacterCount(lines.front()) <= kMaxSide;
}

/// True for the text, in these lines, of one grid or of several.
bool IsOfGrids(const std::string& text, const std::vector<std::string>& lines) {
    if (Trim(text).empty() || lines.empty() || lines.front().empty()) return false;
    return FitsBoard(lines) || HasPuzzle(text);
}

bool WriteLines(const std::string& path, const std::vector<std::string>& lines) {
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
    FoundGrid grid;
    CloseFiles(game);
    if (!ReportGridResult(game, ReadGridFrom(path, number, grid), path, number)) return false;
    TakeImported(game, grid.puzzle, path);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "Edited puzzle read"));
    return true;
}

GridWish AskForGrid(Game& game, const std::string& path, const std::string& name) {
    GridChoice choice;
    GridTally tally;
    bool more = true;
    try {
        GridReader reader(path, kGlance);
        FoundGrid grid;
        while ((more = reader.Next(grid)) && !reader.CutShort() && choice.grids.size() < kMostToChooseFrom) {
            tally.Add(grid);
            choice.grids.push_back(grid);
        }
        more = more || reader.CutShort();
    } catch (const FileError&) {
        return {};
    }
    if (tally.Grids() < 2) return {};
    const std::string words = (more ? "the first " : "") + tally.Words();
    if (tally.Puzzles() == 0 || (tally.Puzzles() == 1 && choice.grids.front().isPuzzle)) return {1, ": " + words};
    choice.caption = name + ": " + words;
    const int number = game.questions.ChooseGrid(choice);
    return {number, ", grid" + Str(number) + ": " + words};
}

void mnuimport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path =
        PickFile(game, {"Select a grid file", "*.txt", "Tide Files", game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    const GridWish wish = AskForGrid(game, path, FileNameOf(path));
    if (wish.number == 0) return;
    ReadGridFile(game, path, wish.number);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "File " + FileNameOf(path) + " imported" + wish.words));
}

void mnupastepuzzle_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string workFile = WorkFile(game, "tempin.txt");
    const std::string text = game.clipboard.Text();
    const std::vector<std::string> lines = LinesOf(text);
    if (!IsOfGrids(text, lines) || !WriteLines(workFile, lines)) {
        game.window.SetText(WindowText::Status, "Error importing puzzle");
        return;
    }
    const GridWish wish = AskForGrid(game, workFile, std::string(kClipboardName));
    if (wish.number == 0) return;
    // The reader has said so itself if it does not take the grid.
    ReadGridFile(game, workFile, wish.number);
    game.window.SetText(WindowText::Status, AndPlayNote(game, "Puzzle imported" + wish.words));
}

void mnucopytext_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string text;
    for (const std::string& row : PlainGrid(game.board.puzzle))
        text += row + "\n";
    game.clipboard.SetText(text);
    game.window.SetText(WindowText::Status, "Puzzle copied as text");
}

}  // namespace tidewalk
