// SPDX-License-Identifier: MIT
// The puzzles of a booklet, as far as they have to be known before a page is drawn.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "booklet/booklet_design.h"
#include "model/line_index.h"
#include "model/puzzle.h"
#include "model/puzzle_range.h"

namespace tidewalk {

/// More puzzles than anybody binds: what is known of them stays in memory.
inline constexpr int kMostBookletPuzzles = 10000;

struct BookletEntry {
    int number = 0;  ///< in its collection
    BoardSize size;
    /// That `DifficultyName` names; nothing without exactly one solution, or if not asked for.
    std::optional<int> score;
    bool solved = false;        ///< it has a solution that can be printed
    std::uint64_t islands = 0;  ///< the `Fingerprint` of its numbers
};

struct BookletContents {
    std::vector<BookletEntry> entries;
    std::vector<int> unreadable;  ///< the numbers of lines that are no puzzles
};

/// Asked before each puzzle with the number of those that are done; false stops. It is also asked, with the same
/// number, while a grade is being found.
using ContentsStep = std::function<bool(int done)>;

/// Reads what is asked for, which is to be no more than `kMostBookletPuzzles`, in the order of the collection. Nothing
/// when `step` said no. Finding grades takes most of the time.
std::optional<BookletContents> ReadBookletContents(const std::string& collection, const PuzzleRange& range, bool graded,
                                                   const ContentsStep& step);

/// "24 puzzles, 7x7 to 12x12".
std::string ContentsText(const std::vector<BookletEntry>& entries);

/// What is to be known of puzzles that are not in the booklet as one may expect, a sentence each.
std::vector<std::string> RemarksOn(const BookletContents& contents, const BookletDesign& design);

/// A number that hardly any puzzle with other numbers has, too.
std::uint64_t Fingerprint(const Puzzle& puzzle);

/// The order in which a booklet has them: equal ones by their numbers, those without a grade last.
void SortEntries(std::vector<BookletEntry>& entries, BookletDesign::Order order);

/// Puzzle `number` of the collection with the bridges of a solution as its links: the stored one, or one that was found
/// where that is none. No links where none was found; nothing where there is no such puzzle.
std::optional<Puzzle> ReadSolvedPuzzle(LineIndex& lines, const std::string& collection, int number);

}  // namespace tidewalk
