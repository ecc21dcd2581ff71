// SPDX-License-Identifier: MIT
#include "model/write_puzzle_record.h"

#include <algorithm>
#include <string_view>

#include "model/numbers.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

using BoardText = Grid<std::string_view>;

constexpr std::string_view kWater = ".";

/// Writes `stroke` into the free cells from one island to the other, both included; the first bridge over a cell stays.
void DrawStroke(BoardText& cells, CellPlace from, CellPlace to, std::string_view stroke) {
    for (int row = std::min(from.row, to.row); row <= std::max(from.row, to.row); ++row) {
        for (int col = std::min(from.col, to.col); col <= std::max(from.col, to.col); ++col) {
            if (cells(row, col) == kWater) cells(row, col) = stroke;
        }
    }
}

void DrawLink(const Puzzle& puzzle, BoardText& cells, const Link& link) {
    if (link.state == 2) return;
    const CellPlace from = puzzle.PlaceOf(link.first);
    const CellPlace to = puzzle.PlaceOf(link.second);
    const bool isDouble = link.state == 0;
    if (from.row == to.row && from.col != to.col) {
        // A single bridge that is listed from right to left has two characters a cell. Nothing in the program lists one
        // so, and files that do have looked like this from the start.
        const std::string_view single = to.col > from.col ? "-" : " -";
        DrawStroke(cells, from, to, isDouble ? "=" : single);
    } else if (from.col == to.col && from.row != to.row) {
        DrawStroke(cells, from, to, isDouble ? "I" : "|");
    }
}

}  // namespace

std::string PuzzleRecord(const Puzzle& puzzle) {
    BoardText cells;
    cells.Fill(kWater);
    for (int i = 1; i <= puzzle.LinkCount(); ++i)
        DrawLink(puzzle, cells, puzzle.LinkList[i]);
    std::string record = Str(puzzle.Rows) + "," + Str(puzzle.Cols) + "," + Str(puzzle.LinkCount()) + ";D;";
    for (int row = 1; row <= puzzle.Rows; ++row) {
        for (int col = 1; col <= puzzle.Cols; ++col) {
            const int number = puzzle.IslandGrid(row, col);
            if (number > 0) {
                record += NumText(number);
            } else {
                record += cells(row, col);
            }
        }
        record += ',';
    }
    return record;
}

void WritePuzzleRecord(Game& game, const std::string& path, int append) {
    game.files.Close(1);
    if (append == 0) {
        return ReplaceFile(path, [&](std::ostream& out) { out << PuzzleRecord(game) << "\r\n"; });
    }
    game.files.Open(1, path, FileMode::Append);
    game.files.Print(1, PuzzleRecord(game));
    game.files.Close(1);
}

}  // namespace tidewalk
