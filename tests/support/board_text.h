// SPDX-License-Identifier: MIT
// Boards written as text, a string a row, as records hold them; and texts as numbers, to pin them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/numbers.h"
#include "model/puzzle_record.h"

namespace tidewalk::test {

using Rows = std::vector<std::string>;

/// A small puzzle of 7x7 with its solution, fifteen bridges on ten links.
inline constexpr const char* kSmallPuzzle = " 7, 7, 22;D;..4===2,1.I....,|.6===3,|.I...|,|.I2..|,2-3I..|,.1-4--2,";

/// The record with the header that these rows need.
inline std::string Record(const Rows& rows) {
    std::string record =
        Str(static_cast<int>(rows.size())) + "," + Str(static_cast<int>(rows.front().size())) + ", 0;D;";
    for (const std::string& row : rows)
        record += row + ",";
    return record;
}

/// The puzzle that these rows hold, with the bridges that are drawn in them.
inline Puzzle PuzzleFrom(const Rows& rows) {
    return ParsePuzzleRecord(Record(rows)).value();
}

/// A number that another text hardly has, too (FNV-1a).
inline std::uint32_t Hash(const std::string& text) {
    std::uint32_t hash = 2166136261U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash;
}

}  // namespace tidewalk::test
