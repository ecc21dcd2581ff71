// SPDX-License-Identifier: MIT
// What several commands tell of a puzzle.
#pragma once

#include <string>

#include "cli/report.h"
#include "model/puzzle.h"

namespace tidewalk {

/// What is said of a line that could not be read.
inline constexpr const char* kNoRecord = "the line is no puzzle record";

struct PuzzleFacts {
    int islands = 0;
    int bridges = 0;       ///< stored ones; a double bridge counts 2
    std::string solution;  ///< of the stored bridges: "none", "valid" or "wrong"
};

PuzzleFacts FactsOf(const Puzzle& puzzle);

/// How many islands the puzzle has.
int IslandCount(const Puzzle& puzzle);

/// Rows and columns as "7x9".
std::string SizeText(const Puzzle& puzzle);

/// The beginning of every line about a puzzle: its number and size, in columns.
std::string LineStart(int number, const Puzzle& puzzle);

/// Adds the rows and columns to an object about a puzzle.
void AddSize(Json& object, const Puzzle& puzzle);

}  // namespace tidewalk
