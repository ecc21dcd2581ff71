// SPDX-License-Identifier: MIT
// A puzzle drawn with characters.
#pragma once

#include <string>
#include <vector>

#include "model/puzzle.h"

namespace tidewalk {

/// How a puzzle is drawn with characters. Two characters across stand for one down, so that its cells look square.
struct TerminalStyle {
    bool bridges = false;  ///< with the stored bridges
    bool large = false;    ///< islands are "(3)", cells four characters by two; else digits, and two by one
    bool ascii = false;    ///< bridges of - = | and ", water of dots
    bool colour = false;   ///< with the sequences that make a terminal show colours and bold numbers
};

/// How many columns and lines of a terminal a drawing with large cells takes.
int LargeDrawingWidth(const Puzzle& puzzle);
int LargeDrawingHeight(const Puzzle& puzzle);

/// The lines of the drawing.
std::vector<std::string> TerminalPicture(const Puzzle& puzzle, const TerminalStyle& style);

}  // namespace tidewalk
