// SPDX-License-Identifier: MIT
// The pages before the puzzles: the cover, and the rules with an example.
#pragma once

#include <string>

#include "booklet/booklet_design.h"
#include "model/puzzle.h"

namespace tidewalk {

/// What stands on a cover.
struct Cover {
    std::string title;
    std::string author;
    std::string contents;  ///< "24 puzzles, 7x7 to 12x12"
    Puzzle emblem;         ///< drawn in the middle without its bridges, where it can be read there
    IslandShape shape = IslandShape::Circle;
};

/// Draws the cover into `body`.
void DrawCover(const Cover& cover, Surface& surface, const Surface::Area& body);

/// Draws the rules, and a small puzzle with the way to its solution step by step, in letters as large as `body`
/// allows, up to 12 points.
void DrawRules(IslandShape shape, Surface& surface, const Surface::Area& body);

/// The puzzle that the rules are shown on, the one of the help, with its solution.
Puzzle ExamplePuzzle();

}  // namespace tidewalk
