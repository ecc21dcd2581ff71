// SPDX-License-Identifier: MIT
// Reading grids out of text, one after the other, in every form that they are handed round in.
#pragma once

#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "model/line_reader.h"
#include "model/may_go_on.h"
#include "model/puzzle.h"

namespace tidewalk {

/// What stands where a text has a grid.
struct FoundGrid {
    std::int64_t line = 0;  ///< where it begins, its size line or mark included; from 1
    bool fits = false;      ///< a board can hold it, and it is not cut short
    /// It fits, has islands, and nothing in it speaks against a puzzle: no letter, no 9, no digit beyond its width.
    bool isPuzzle = false;
    Puzzle puzzle;  ///< no cells when it does not fit
};

/// How much of a file is looked at to say what there is, by whoever waits for it. Thousands of grids are smaller.
inline constexpr std::uint64_t kGlance = 4 * 1024 * 1024;

/// Takes the grids of a text in their order. Whatever the text is, no more than a few lines of it are held.
///
/// - A text that begins with "#" is a sequence of grids with a mark "#RRCC" each, rows and columns in two digits.
/// - Any other text holds plain grids with empty lines between them: as wide as its first line, a character a column.
///   What is missing in a row and what is no digit is water.
/// - A grid is spaced if the second, fourth and every further even column is blank, and a "." occurs; they do not
/// count.
/// - A line such as "7x9", "7 9" or "7" is its size if just so many rows of just that width follow, or the other way
///   round, and then an empty line, the end or a further size line. Where those rows are no wider than the line, they
///   may as well be a grid that begins with it; then it takes a ".", or more than blanks between its numbers.
///
/// An empty first line means that there are none. A plain grid ends with an empty line or before a size line, one that
/// does not fit before a mark, too; what lies behind the rows that tell so is passed over when the next grid is taken.
class GridReader {
 public:
    static constexpr std::uint64_t kWithoutEnd = std::numeric_limits<std::uint64_t>::max();

    /// Looks at no more than so many bytes, and at the rest of a line. Throws FileError when the file cannot be opened.
    explicit GridReader(const std::string& path, std::uint64_t most = kWithoutEnd, MayGoOn mayGoOn = WithoutEnd)
        : lines_(path), most_(most), mayGoOn_(std::move(mayGoOn)) {}
    /// `source` has to live as long; messages call it `name`.
    GridReader(std::streambuf& source, std::string name, std::uint64_t most = kWithoutEnd)
        : lines_(source, std::move(name)), most_(most), mayGoOn_(WithoutEnd) {}

    /// Takes the next grid; false when there is none, and once it is not to go on. Throws FileError when reading fails.
    bool Next(FoundGrid& grid);

    /// True when there were no more bytes to look at, whatever comes behind.
    bool CutShort() const { return lines_.Position() >= most_; }

 private:
    /// The rows of a grid among the lines ahead.
    struct Rows {
        std::size_t first = 0;
        BoardSize size;
        bool spaced = false;
    };

    bool HasLine(std::size_t at);
    bool HasRow(std::size_t at);
    std::deque<std::string>::const_iterator RowAt(std::size_t at) const {
        return ahead_.begin() + static_cast<std::ptrdiff_t>(at);
    }
    void Drop(std::size_t count);
    std::optional<Rows> SizedAt(std::size_t at);
    std::optional<Rows> RowsOfSize(std::size_t at, BoardSize size);
    std::size_t PlainRows();
    bool IsBlankNext();
    void PassRest();
    void ReadMarked(FoundGrid& grid);
    void ReadPlain(FoundGrid& grid);
    void Take(const Rows& rows, FoundGrid& grid);

    LineReader lines_;
    std::deque<std::string> ahead_;  ///< lines that were read and not yet taken
    std::uint64_t most_;             ///< bytes to look at
    MayGoOn mayGoOn_;
    bool stopped_ = false;
    bool ended_ = false;
    std::int64_t taken_ = 0;  ///< lines
    bool any_ = false;        ///< a grid was taken
    bool rest_ = false;       ///< of a grid that does not fit lies ahead
    bool marked_ = false;
};

}  // namespace tidewalk
