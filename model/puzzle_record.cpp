// SPDX-License-Identifier: MIT
#include "model/puzzle_record.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "model/characters.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// The characters of the board as a record shows them; "." where it shows none.
using BoardText = Grid<std::string_view>;

/// The same as it is read: what is no single byte says nothing.
using BoardBytes = Grid<char>;
constexpr char kNothing = '.';

constexpr std::string_view kWater = ".";

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// The size that the header gives; nothing when it has no three fields or no board is so large.
std::optional<BoardSize> ReadHeader(std::string_view header) {
    const auto fields = Split(header, ',');
    if (fields.size() < 3) return std::nullopt;
    const BoardSize size{RoundedVal(fields[0]), RoundedVal(fields[1])};
    if (size.rows < 1 || size.rows > kMaxSide || size.cols < 1 || size.cols > kMaxSide) return std::nullopt;
    return size;
}

/// Reads the islands' numbers, and every character for the bridges between them; false when a row is missing.
bool ReadRows(Puzzle& puzzle, std::string_view rows, BoardBytes& cells) {
    cells.Fill(kNothing);
    bool isThere = true;
    for (int row = 1; row <= puzzle.Rows; ++row) {
        if (!isThere) return false;
        const std::size_t end = rows.find(',');
        std::string_view text = rows.substr(0, end);
        isThere = end != std::string_view::npos;
        rows.remove_prefix(isThere ? end + 1 : rows.size());
        for (int col = 1; col <= puzzle.Cols && !text.empty(); ++col) {
            const std::string_view character = TakeCharacter(text);
            const char byte = character.size() == 1 ? character.front() : kNothing;
            cells(row, col) = byte;
            if (byte > '0' && byte <= '9') puzzle.SetIsland(puzzle.CellId(row, col), byte - '0');
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
void TakeBridge(Puzzle& puzzle, const BoardBytes& cells, CellPlace from, Step step, char stroke, int state) {
    CellPlace end{from.row + step.row, from.col + step.col};
    if (cells(end.row, end.col) != stroke || puzzle.IslandGrid(from.row, from.col) <= 0) return;
    while (puzzle.OnBoard(end.row, end.col) && cells(end.row, end.col) == stroke) {
        end.row += step.row;
        end.col += step.col;
    }
    if (!puzzle.OnBoard(end.row, end.col)) return;
    puzzle.LinkList.push_back(MakeLink(puzzle.CellId(from), puzzle.CellId(end), state));
}

void ReadBridges(Puzzle& puzzle, const BoardBytes& cells) {
    constexpr Step kRight{0, 1};
    constexpr Step kDown{1, 0};
    for (int row = 1; row <= puzzle.Rows; ++row) {
        for (int col = 1; col < puzzle.Cols; ++col)
            TakeBridge(puzzle, cells, {row, col}, kRight, '-', 1);
        for (int col = 1; col < puzzle.Cols; ++col)
            TakeBridge(puzzle, cells, {row, col}, kRight, '=', 0);
    }
    for (const auto& [stroke, state] : {std::pair{'|', 1}, std::pair{'I', 0}}) {
        for (int col = 1; col <= puzzle.Cols; ++col) {
            for (int row = 1; row < puzzle.Rows; ++row)
                TakeBridge(puzzle, cells, {row, col}, kDown, stroke, state);
        }
    }
}

/// Writes `stroke` into the free cells from one island to the other, both included; the first bridge over a cell stays.
void DrawStroke(BoardText& cells, CellPlace from, CellPlace to, std::string_view stroke) {
    for (int row = std::min(from.row, to.row); row <= std::max(from.row, to.row); ++row) {
        for (int col = std::min(from.col, to.col); col <= std::max(from.col, to.col); ++col) {
            if (cells(row, col) == kWater) cells(row, col) = stroke;
        }
    }
}

void DrawLink(const Puzzle& puzzle, BoardText& cells, const Link& link) {
    if (link.Bridges() == 0) return;
    const CellPlace from = puzzle.PlaceOf(link.first);
    const CellPlace to = puzzle.PlaceOf(link.second);
    const bool isDouble = link.Bridges() == 2;
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

bool MayBeRecord(std::string_view line) {
    return line.size() <= kLongestRecord && std::none_of(line.begin(), line.end(), [](char c) {
               return (c >= 0 && c < ' ' && c != '\t') || c == '\x7F';
           });
}

RecordRead ReadPuzzleRecord(std::string_view record, Puzzle& puzzle) {
    const auto parts = Split(record, ';');
    const auto size = parts.size() < 3 ? std::nullopt : ReadHeader(parts[0]);
    puzzle = Puzzle(size.value_or(BoardSize{}));
    if (!size) return RecordRead::Nothing;
    BoardBytes cells;
    if (!ReadRows(puzzle, parts[2], cells)) return RecordRead::Rows;
    ReadBridges(puzzle, cells);
    return RecordRead::Whole;
}

std::optional<Puzzle> ParsePuzzleRecord(std::string_view line) {
    Puzzle puzzle;
    if (!MayBeRecord(line) || ReadPuzzleRecord(line, puzzle) != RecordRead::Whole) return std::nullopt;
    return puzzle;
}

bool RecordHoldsBridges(const Puzzle& puzzle) {
    return std::none_of(puzzle.LinkList.begin(), puzzle.LinkList.end(), [&](const Link& link) {
        const auto [low, high] = std::minmax(link.first, link.second);
        return link.Bridges() > 0 && (high - low == 1 || high - low == puzzle.Cols);
    });
}

std::string PuzzleRecord(const Puzzle& puzzle) {
    BoardText cells;
    cells.Fill(kWater);
    for (const Link& link : puzzle.LinkList)
        DrawLink(puzzle, cells, link);
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

}  // namespace tidewalk
