// SPDX-License-Identifier: MIT
#include "model/grid_text.h"

#include <algorithm>

#include "model/grid.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr char kMark = '#';

bool IsSide(int cells) {
    return cells >= 1 && cells <= kMaxSide;
}

/// The size behind the mark: two characters for the rows, two for the columns.
bool ReadSize(const std::string& line, GridText& grid) {
    if (line.size() < 4) return false;
    grid.rows = RoundedVal(std::string_view(line).substr(1, 2));
    grid.cols = RoundedVal(std::string_view(line).substr(3, 2));
    return IsSide(grid.rows) && IsSide(grid.cols);
}

/// Reads the rows behind a size line.
bool ReadRows(NumberedFiles& files, GridText& grid) {
    grid.lines.clear();
    std::string line;
    for (int row = 1; row <= grid.rows; ++row) {
        if (!files.ReadLine(1, line)) return false;
        grid.lines.push_back(line.substr(0, static_cast<std::size_t>(grid.cols)));
    }
    return true;
}

GridResult ReadMarkedGrids(NumberedFiles& files, std::string line, int number, GridText& grid) {
    for (int at = 1;; ++at) {
        if (line.front() != kMark || !ReadSize(line, grid) || !ReadRows(files, grid)) return GridResult::Failed;
        if (at == number) return GridResult::Read;
        do {
            if (!files.ReadLine(1, line)) return GridResult::NotFound;
        } while (line.empty());
    }
}

GridResult ReadPlainGrid(NumberedFiles& files, std::string line, GridText& grid) {
    if (line.size() > static_cast<std::size_t>(kMaxSide)) return GridResult::Failed;
    grid.cols = static_cast<int>(line.size());
    grid.rows = 0;
    grid.lines.clear();
    do {
        if (++grid.rows > kMaxSide) return GridResult::Failed;
        grid.lines.push_back(line.substr(0, static_cast<std::size_t>(grid.cols)));
    } while (files.ReadLine(1, line) && !line.empty());
    return GridResult::Read;
}

GridResult ReadOpenFile(NumberedFiles& files, int number, GridText& grid) {
    std::string line;
    if (number < 1 || !files.ReadLine(1, line) || line.empty()) return GridResult::NotFound;
    if (line.front() == kMark) return ReadMarkedGrids(files, line, number, grid);
    return number == 1 ? ReadPlainGrid(files, line, grid) : GridResult::NotFound;
}

}  // namespace

int GridText::At(int row, int col) const {
    if (row < 1 || static_cast<std::size_t>(row) > lines.size()) return 0;
    const std::string& line = lines[static_cast<std::size_t>(row - 1)];
    if (col < 1 || static_cast<std::size_t>(col) > line.size()) return 0;
    const char cell = line[static_cast<std::size_t>(col - 1)];
    return cell >= '0' && cell <= '9' ? cell - '0' : 0;
}

GridResult ReadGridText(NumberedFiles& files, const std::string& path, int number, GridText& grid) {
    GridResult result = GridResult::Failed;
    files.CloseAll();
    try {
        files.Open(1, path, FileMode::Input);
        result = ReadOpenFile(files, number, grid);
    } catch (const FileError&) {
        result = GridResult::Failed;
    }
    files.CloseAll();
    return result;
}

}  // namespace tidewalk
