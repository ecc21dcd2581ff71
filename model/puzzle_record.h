// SPDX-License-Identifier: MIT
// A puzzle as a line of a collection: "rows, columns, links;kind;grid".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/puzzle.h"

namespace tidewalk {

/// Far above the 700 characters of the largest record; a longer line is no record.
inline constexpr std::size_t kLongestRecord = 64 * 1024;

/// False for a line that is too long for a record or holds bytes that no text file holds.
bool MayBeRecord(std::string_view line);

/// How much of a record could be read.
enum class RecordRead {
    Nothing,  ///< it has no three fields, or its header gives no size of 1..25
    Rows,     ///< the size and the rows that come before the first that is missing
    Whole
};

/// Reads the record, a line without its end, into `puzzle`, which holds what was read; after `Nothing` it is no puzzle.
///
/// A column is one character. Digits are islands; a run of bridge characters that an island begins is a stored bridge
/// to whatever cell ends it on the board. The links come row by row, in each row the single bridges and then the
/// double ones; after them the single and then the double bridges of all columns.
RecordRead ReadPuzzleRecord(std::string_view record, Puzzle& puzzle);

/// The puzzle of a line; nothing when that is no whole record.
std::optional<Puzzle> ParsePuzzleRecord(std::string_view line);

/// False when bridges join islands that touch each other: a record shows bridges by the cells between their ends, and
/// there is none.
bool RecordHoldsBridges(const Puzzle& puzzle);

/// The puzzle and its bridges as a record, without a line's end.
std::string PuzzleRecord(const Puzzle& puzzle);

}  // namespace tidewalk
