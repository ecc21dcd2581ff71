// SPDX-License-Identifier: MIT
#include "model/grid_reader.h"

#include <algorithm>
#include <string_view>

#include "model/characters.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr char kMark = '#';
constexpr std::size_t kMostRows = kMaxSide;

/// What is held of a line: more characters than any row has, whatever their bytes.
constexpr std::size_t kLineBytes = 512;

bool IsSide(int cells) {
    return cells >= 1 && cells <= kMaxSide;
}

/// The size behind the mark: two characters for the rows, two for the columns.
std::optional<BoardSize> MarkedSize(std::string_view line) {
    if (line.size() < 4 || line.front() != kMark) return std::nullopt;
    const BoardSize size{RoundedVal(line.substr(1, 2)), RoundedVal(line.substr(3, 2))};
    return IsSide(size.rows) && IsSide(size.cols) ? std::optional(size) : std::nullopt;
}

/// Takes one or two digits off the front of the text; 0 when they are no side of a board.
int TakeSide(std::string_view& text) {
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    if (digits == 0 || digits > 2) return 0;
    const int side = RoundedVal(text.substr(0, digits));
    text.remove_prefix(digits);
    return IsSide(side) ? side : 0;
}

/// The size that a line of one or two numbers names; nothing for any other line.
std::optional<BoardSize> NamedSize(std::string_view line) {
    line = Trim(line);
    const int rows = TakeSide(line);
    if (rows == 0) return std::nullopt;
    if (line.empty()) return BoardSize{rows, rows};
    std::string_view rest = Trim(line);
    for (const std::string_view times : {"x", "X", "*", ",", "\xC3\x97"}) {
        if (!rest.starts_with(times)) continue;
        rest = Trim(rest.substr(times.size()));
        break;
    }
    const int cols = TakeSide(rest);
    return cols > 0 && rest.empty() ? std::optional(BoardSize{rows, cols}) : std::nullopt;
}

/// True when every even column is blank.
bool IsSpaced(std::string_view row) {
    for (int col = 1; !row.empty(); ++col) {
        if (TakeCharacter(row) != " " && col % 2 == 0) return false;
    }
    return true;
}

bool HasPoint(std::string_view row) {
    return row.find('.') != std::string_view::npos;
}

bool IsBlank(std::string_view row) {
    return row.find_first_not_of(' ') == std::string_view::npos;
}

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Puts the numbers of the row into the puzzle. False when something in it speaks against a puzzle.
bool SetRow(Puzzle& puzzle, int row, std::string_view text, bool spaced) {
    constexpr int kMostOfAnIsland = 8;
    bool isRow = true;
    for (int col = 1; !text.empty(); ++col) {
        const std::string_view character = TakeCharacter(text);
        const int number = RoundedVal(character);
        const bool inside = col <= puzzle.Cols;
        if (inside) puzzle.SetIsland(puzzle.CellId(row, col), number);
        const bool isOther = IsLetter(character.front()) || character.front() == kMark;
        if (isOther || number > kMostOfAnIsland || (number > 0 && !inside)) isRow = false;
        if (spaced && !text.empty()) TakeCharacter(text);
    }
    return isRow;
}

}  // namespace

/// True when a line lies so far ahead.
bool GridReader::HasLine(std::size_t at) {
    while (ahead_.size() <= at && !ended_) {
        std::string line;
        stopped_ = !mayGoOn_();
        ended_ = stopped_ || CutShort() || !lines_.Next(line, kLineBytes);
        if (!ended_) ahead_.push_back(std::move(line));
    }
    return at < ahead_.size();
}

/// True when it is not empty either, and so may be a row.
bool GridReader::HasRow(std::size_t at) {
    return HasLine(at) && !ahead_[at].empty();
}

void GridReader::Drop(std::size_t count) {
    ahead_.erase(ahead_.begin(), ahead_.begin() + static_cast<std::ptrdiff_t>(count));
    taken_ += static_cast<std::int64_t>(count);
}

/// The rows behind the line so far ahead, if it is a size line that fits them.
std::optional<GridReader::Rows> GridReader::SizedAt(std::size_t at) {
    const auto size = HasRow(at) ? NamedSize(ahead_[at]) : std::nullopt;
    if (!size) return std::nullopt;
    const auto rows = RowsOfSize(at, *size);
    return rows || size->rows == size->cols ? rows : RowsOfSize(at, {size->cols, size->rows});
}

/// The same for one of the two sizes that the line may name.
std::optional<GridReader::Rows> GridReader::RowsOfSize(std::size_t at, BoardSize size) {
    bool plain = true;
    bool spaced = true;
    const std::size_t end = at + 1 + static_cast<std::size_t>(size.rows);
    for (std::size_t i = at + 1; i < end; ++i) {
        if (!HasRow(i)) return std::nullopt;
        const int columns = CharacterCount(ahead_[i]);
        plain = plain && columns == size.cols;
        spaced = spaced && (columns + 1) / 2 == size.cols && IsSpaced(ahead_[i]);
        if (!plain && !spaced) return std::nullopt;
    }
    if (HasRow(end) && !NamedSize(ahead_[end])) return std::nullopt;
    const bool hasPoint = std::any_of(RowAt(at + 1), RowAt(end), HasPoint);
    if (!plain && !hasPoint) return std::nullopt;
    const bool numbersAlone = ahead_[at].find_first_not_of("0123456789 ") == std::string::npos;
    if (numbersAlone && CharacterCount(ahead_[at + 1]) <= CharacterCount(ahead_[at])) {
        if (!hasPoint || std::all_of(RowAt(at), RowAt(end), IsSpaced)) return std::nullopt;
    }
    return Rows{at + 1, size, !plain};
}

/// How many rows a grid without a size line has; more than a board holds when it does not end there.
std::size_t GridReader::PlainRows() {
    std::size_t count = 1;
    while (count <= kMostRows && HasRow(count) && !SizedAt(count))
        ++count;
    return count;
}

void GridReader::Take(const Rows& rows, FoundGrid& grid) {
    grid.puzzle = Puzzle(rows.size);
    grid.fits = grid.isPuzzle = true;
    for (int row = 1; row <= rows.size.rows; ++row) {
        const std::string& text = ahead_[rows.first + static_cast<std::size_t>(row) - 1];
        grid.isPuzzle = SetRow(grid.puzzle, row, text, rows.spaced) && grid.isPuzzle;
    }
    grid.isPuzzle = grid.isPuzzle && grid.puzzle.IslandCount() > 0;
    Drop(rows.first + static_cast<std::size_t>(rows.size.rows));
}

/// The rows of a marked grid are counted, so that empty ones are rows, too.
void GridReader::ReadMarked(FoundGrid& grid) {
    const auto size = MarkedSize(ahead_.front());
    if (size && HasLine(static_cast<std::size_t>(size->rows))) return Take({1, *size, false}, grid);
    Drop(1);
    rest_ = true;
}

void GridReader::ReadPlain(FoundGrid& grid) {
    if (const auto rows = SizedAt(0)) return Take(*rows, grid);
    const std::size_t count = PlainRows();
    const auto end = RowAt(count);
    int columns = CharacterCount(ahead_.front());
    const bool spaced = columns > 2 && std::all_of(RowAt(0), end, IsSpaced) && std::any_of(RowAt(0), end, HasPoint);
    if (spaced) columns = (columns + 1) / 2;
    if (count <= kMostRows && IsSide(columns)) return Take({0, {static_cast<int>(count), columns}, spaced}, grid);
    Drop(1);
    rest_ = true;
}

/// Passes over what is left of a grid that no board can hold, which may be all of a large file.
void GridReader::PassRest() {
    while (rest_ && (marked_ ? HasLine(0) && !ahead_.front().starts_with(kMark) : HasRow(0) && !SizedAt(0)))
        Drop(1);
    rest_ = false;
}

/// True when nothing but blanks stands up to the next empty line.
bool GridReader::IsBlankNext() {
    const std::size_t count = PlainRows();
    return count <= kMostRows && std::all_of(RowAt(0), RowAt(count), IsBlank);
}

bool GridReader::Next(FoundGrid& grid) {
    if (!any_ && HasRow(0)) marked_ = ahead_.front().starts_with(kMark);
    PassRest();
    // Behind the first grid, lines without anything to see lie between grids and mean nothing else.
    while (any_ && HasLine(0) && (ahead_.front().empty() || (!marked_ && IsBlankNext())))
        Drop(1);
    if (!HasRow(0)) return false;
    grid = {};
    grid.line = taken_ + 1;
    marked_ ? ReadMarked(grid) : ReadPlain(grid);
    any_ = true;
    // What looks like a grid may be the part of one that was read before the stop.
    return !stopped_;
}

}  // namespace tidewalk
