// SPDX-License-Identifier: MIT
#include "model/plain_grid.h"

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr char kMark = '#';

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

std::string GridText(const Puzzle& puzzle, GridForm form) {
    const bool spaced = form == GridForm::Spaced && puzzle.IslandCount() < puzzle.CellCount();
    std::string text;
    if (form == GridForm::Sized) text = SizeText(puzzle.Size()) + std::string(kLineEnd);
    for (const std::string& row : PlainGrid(puzzle)) {
        for (std::size_t col = 0; col < row.size(); ++col) {
            if (spaced && col > 0) text += ' ';
            text += row[col];
        }
        text += kLineEnd;
    }
    return text;
}

GridResult ReadGridFrom(const std::string& path, int number, FoundGrid& grid, const MayGoOn& mayGoOn) {
    try {
        GridReader reader(path, GridReader::kWithoutEnd, mayGoOn);
        FoundGrid found;
        if (number < 1) return GridResult::NotFound;
        for (int at = 0; at < number; ++at) {
            if (!reader.Next(found)) return GridResult::NotFound;
        }
        if (!found.fits) return GridResult::Failed;
        grid = found;
        return GridResult::Read;
    } catch (const FileError&) {
        return GridResult::Failed;
    }
}

}  // namespace tidewalk
