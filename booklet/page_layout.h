// SPDX-License-Identifier: MIT
// Where the boards of a booklet lie on its pages.
#pragma once

#include <string>
#include <vector>

#include "booklet/booklet.h"

namespace tidewalk {

/// The parts of a sheet, in twips.
struct PageFrame {
    Surface::Area body;    ///< what boards and text lie in
    double headerTop = 0;  ///< where the line of the header begins
    double footerTop = 0;
};

/// The frame of the pages behind the cover.
PageFrame FrameOf(const BookletDesign& design, const Sheet& sheet);

/// What a caption and the gap below it take above a puzzle, and above a solution at the end; 0 for none.
double PuzzleCaptionHeight(const BookletDesign& design);
double SolutionCaptionHeight();

/// The height of the heading on top of the first page of solutions.
inline constexpr double kSolutionsHeading = 480;

/// The pages with puzzles. The entries that do not fit at `kSmallestPuzzleCell` are added to `misfits`, by their
/// indices; the pages are of no use then.
std::vector<BookletPage> LayOutPuzzles(const BookletDesign& design, const std::vector<BookletEntry>& entries,
                                       const Surface::Area& body, std::vector<std::size_t>& misfits);

/// The pages with the solutions at the end, each board as small as it can be read, or a little larger where that takes
/// no further page. Puzzles without a solution have none here.
std::vector<BookletPage> LayOutSolutions(const std::vector<BookletEntry>& entries, const Surface::Area& body,
                                         std::vector<std::size_t>& misfits);

}  // namespace tidewalk
