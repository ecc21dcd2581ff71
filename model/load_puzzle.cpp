// SPDX-License-Identifier: MIT
#include "model/load_puzzle.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "model/numbers.h"
#include "model/work_areas.h"

namespace tidewalk {

namespace {

/// The characters of the board as the record gives them; '.' where it gives none.
using BoardText = Grid<char>;

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// False for a line that is too long or holds bytes no text file holds.
bool MayBeRecord(std::string_view line) {
    return line.size() <= kLongestRecord && std::none_of(line.begin(), line.end(), [](char c) {
               return (c >= 0 && c < ' ' && c != '\t') || c == '\x7F';
           });
}

/// Reads line `number` of the file into `record`; false when there is none or it can be no record. File 1 stays open.
bool ReadRecord(NumberedFiles& files, const std::string& path, int number, std::string& record) {
    files.Open(1, path, FileMode::Input);
    for (int line = 1; line < number; ++line) {
        if (!files.SkipLine(1)) return false;
    }
    return number >= 1 && files.ReadLine(1, record) && MayBeRecord(record);
}

bool ReadHeader(Puzzle& puzzle, std::string_view header) {
    const auto fields = Split(header, ',');
    if (fields.size() < 3) return false;
    const int rows = RoundedVal(fields[0]);
    const int cols = RoundedVal(fields[1]);
    if (rows < 1 || rows > kMaxSide || cols < 1 || cols > kMaxSide) return false;
    puzzle.Rows = rows;
    puzzle.Cols = cols;
    return true;
}

/// Reads the islands' numbers, and every character for the bridges between them; false when a row is missing.
bool ReadBoard(Puzzle& puzzle, std::string_view boardText, BoardText& cells) {
    const auto rows = Split(boardText, ',');
    cells.Fill('.');
    puzzle.NumberTotal = 0;
    for (int row = 1; row <= puzzle.Rows; ++row) {
        if (static_cast<std::size_t>(row) > rows.size()) return false;
        const std::string_view text = rows[static_cast<std::size_t>(row - 1)];
        const int given = std::min(puzzle.Cols, static_cast<int>(text.size()));
        for (int col = 1; col <= puzzle.Cols; ++col) {
            if (col <= given) cells(row, col) = text[static_cast<std::size_t>(col - 1)];
            const int number = static_cast<int>(Val({&cells(row, col), 1}));
            puzzle.IslandGrid(row, col) = number;
            puzzle.GivenGrid(row, col) = number;
            puzzle.NumberTotal += number;
        }
    }
    return true;
}

/// A step along a row or down a column.
struct Step {
    int row;
    int col;
};

/// Records the bridge drawn with `stroke` that leaves the island at (row, col) by `step`. Whatever cell ends the run is
/// taken for the other island, without a look at it; a run that leaves the board is no bridge.
void TakeBridge(Puzzle& puzzle, const BoardText& cells, int row, int col, Step step, char stroke, int state) {
    if (puzzle.IslandGrid(row, col) <= 0 || cells(row + step.row, col + step.col) != stroke) return;
    int endRow = row + step.row;
    int endCol = col + step.col;
    while (puzzle.OnBoard(endRow, endCol) && cells(endRow, endCol) == stroke) {
        endRow += step.row;
        endCol += step.col;
    }
    if (!puzzle.OnBoard(endRow, endCol)) return;
    puzzle.LinkList.Append(puzzle.CellId(row, col), puzzle.CellId(endRow, endCol), state);
}

/// Rebuilds the links of the stored solution: row by row the single bridges and then the double ones, after them the
/// single and then the double bridges of all columns.
void ReadBridges(Puzzle& puzzle, const BoardText& cells) {
    constexpr Step kRight{0, 1};
    constexpr Step kDown{1, 0};
    for (int row = 1; row <= puzzle.Rows; ++row) {
        for (int col = 1; col < puzzle.Cols; ++col)
            TakeBridge(puzzle, cells, row, col, kRight, '-', 1);
        for (int col = 1; col < puzzle.Cols; ++col)
            TakeBridge(puzzle, cells, row, col, kRight, '=', 0);
    }
    for (const auto& [stroke, state] : {std::pair{'|', 1}, std::pair{'I', 0}}) {
        for (int col = 1; col <= puzzle.Cols; ++col) {
            for (int row = 1; row < puzzle.Rows; ++row)
                TakeBridge(puzzle, cells, row, col, kDown, stroke, state);
        }
    }
}

/// Reads the record into `puzzle`. `numberBoard` is called once its size is known, and has to number the cells.
template <class NumberBoard>
bool ParseRecord(Puzzle& puzzle, std::string_view record, NumberBoard numberBoard) {
    const auto parts = Split(record, ';');
    if (parts.size() < 3 || !ReadHeader(puzzle, parts[0])) return false;
    numberBoard();
    BoardText cells;
    if (!ReadBoard(puzzle, parts[2], cells)) return false;
    ReadBridges(puzzle, cells);
    return true;
}

/// Reads the line into the game itself; file 1 is closed only after a success.
bool ReadCurrentPuzzle(Game& game, const std::string& path, int number) {
    std::string record;
    if (!ReadRecord(game.files, path, number, record)) return false;
    ResetWorkAreas(game);
    const auto layOut = [&game] {
        NumberNewBoard(game);
        FitBoard(game);
    };
    if (!ParseRecord(game, record, layOut)) return false;
    game.files.Close(1);
    return true;
}

}  // namespace

int CountLines(Game& game, const std::string& path) {
    game.files.CloseAll();
    int count = 0;
    try {
        game.files.Open(1, path, FileMode::Input);
        while (game.files.SkipLine(1))
            ++count;
        game.files.Close(1);
    } catch (const FileError&) {
        game.files.CloseAll();
        return 0;
    }
    return count;
}

bool ReadPuzzleRecord(std::string_view record, Puzzle& puzzle) {
    puzzle = Puzzle();
    puzzle.IslandGrid.FillBoard(-1);
    puzzle.GivenGrid.FillBoard(-1);
    const auto numberCells = [&puzzle] {
        NumberCells(puzzle);
        puzzle.LinkList.Clear(puzzle.Cols);
    };
    return MayBeRecord(record) && ParseRecord(puzzle, record, numberCells);
}

bool ReadPuzzle(NumberedFiles& files, const std::string& path, int number, Puzzle& puzzle) {
    files.CloseAll();
    bool read = false;
    try {
        std::string record;
        read = ReadRecord(files, path, number, record) && ReadPuzzleRecord(record, puzzle);
    } catch (const FileError&) {
        read = false;
    }
    files.CloseAll();
    return read;
}

int LoadPuzzle(Game& game, const std::string& path, int number) {
    bool read = false;
    try {
        read = ReadCurrentPuzzle(game, path, number);
    } catch (const FileError&) {
        read = false;
    }
    if (!read) {
        game.prompts.Show("puzzle" + Str(number) + " not found", "vbinformation+vbok");
        return 1;
    }
    game.board.RedrawBoard(game, false);
    game.BusyFlag = NoValue;
    game.CancelFlag = NoValue;
    game.PuzzleCount = CountLines(game, path);
    game.PuzzleNumber = number;
    game.CollectionPath = path;
    game.window.SetText(Control::PuzNumNow, NumText(number));
    ShowPuzzleLabels(game, path);
    return 0;
}

}  // namespace tidewalk
