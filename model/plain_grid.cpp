// SPDX-License-Identifier: MIT
#include "model/plain_grid.h"

#include <algorithm>

#include "model/characters.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr char kMark = '#';

/// A grid as it is read: its rows may be shorter or longer than it is wide.
struct GridLines {
    BoardSize size;
    std::vector<std::string> rows;
};

bool IsSide(int cells) {
    return cells >= 1 && cells <= kMaxSide;
}

/// The size behind the mark: two characters for the rows, two for the columns.
bool ReadSize(const std::string& line, GridLines& grid) {
    if (line.size() < 4) return false;
    grid.size = {RoundedVal(std::string_view(line).substr(1, 2)), RoundedVal(std::string_view(line).substr(3, 2))};
    return IsSide(grid.size.rows) && IsSide(grid.size.cols);
}

/// Reads the rows behind a size line.
bool ReadRows(LineReader& lines, GridLines& grid) {
    grid.rows.resize(static_cast<std::size_t>(grid.size.rows));
    return std::all_of(grid.rows.begin(), grid.rows.end(), [&](std::string& row) { return lines.Next(row); });
}

GridResult ReadMarkedGrids(LineReader& lines, std::string line, int number, GridLines& grid) {
    for (int at = 1;; ++at) {
        if (line.front() != kMark || !ReadSize(line, grid) || !ReadRows(lines, grid)) return GridResult::Failed;
        if (at == number) return GridResult::Read;
        do {
            if (!lines.Next(line)) return GridResult::NotFound;
        } while (line.empty());
    }
}

GridResult ReadPlainGrid(LineReader& lines, std::string line, GridLines& grid) {
    grid.size.cols = CharacterCount(line);
    if (!IsSide(grid.size.cols)) return GridResult::Failed;
    do {
        if (++grid.size.rows > kMaxSide) return GridResult::Failed;
        grid.rows.push_back(line);
    } while (lines.Next(line) && !line.empty());
    return GridResult::Read;
}

GridResult ReadLines(const std::string& path, int number, GridLines& grid) {
    LineReader lines(path);
    std::string line;
    if (number < 1 || !lines.Next(line) || line.empty()) return GridResult::NotFound;
    if (line.front() == kMark) return ReadMarkedGrids(lines, line, number, grid);
    return number == 1 ? ReadPlainGrid(lines, line, grid) : GridResult::NotFound;
}

Puzzle PuzzleOf(const GridLines& grid) {
    Puzzle puzzle(grid.size);
    for (int row = 1; row <= puzzle.Rows; ++row) {
        std::string_view text = grid.rows[static_cast<std::size_t>(row - 1)];
        for (int col = 1; col <= puzzle.Cols && !text.empty(); ++col)
            puzzle.SetIsland(puzzle.CellId(row, col), RoundedVal(TakeCharacter(text)));
    }
    return puzzle;
}

}  // namespace

std::vector<std::string> PlainGrid(const Puzzle& puzzle) {
    std::vector<std::string> rows;
    for (int row = 1; row <= puzzle.Rows; ++row) {
        std::string text;
        for (int col = 1; col <= puzzle.Cols; ++col) {
            const int number = puzzle.IslandGrid(row, col);
            text += number >= 1 ? NumText(number) : ".";
        }
        rows.push_back(std::move(text));
    }
    return rows;
}

std::string MarkedGrid(const Puzzle& puzzle) {
    std::string text = kMark + Format(puzzle.Rows, "00") + Format(puzzle.Cols, "00") + std::string(kLineEnd);
    for (const std::string& row : PlainGrid(puzzle))
        text.append(row).append(kLineEnd);
    return text;
}

GridResult ReadGridFrom(const std::string& path, int number, Puzzle& puzzle) {
    GridLines grid;
    try {
        const GridResult result = ReadLines(path, number, grid);
        if (result == GridResult::Read) puzzle = PuzzleOf(grid);
        return result;
    } catch (const FileError&) {
        return GridResult::Failed;
    }
}

}  // namespace tidewalk
