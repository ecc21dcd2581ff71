// SPDX-License-Identifier: MIT
// The puzzle and its solution in black on white, for the clipboard and for paper.
#pragma once

#include <string>
#include <string_view>

#include "drawing/printed_board.h"
#include "model/puzzle.h"

namespace tidewalk {

/// Where the offsets of pictures and pages lie, in twips.
inline constexpr int kPictureOffset = 400;
inline constexpr int kPageOffsetX = 1200;
inline constexpr int kPageOffsetY = 800;

/// Around what is drawn on a picture, in twips.
inline constexpr double kPictureMargin = 200;

/// The side of the clipboard's surface, in twips, larger than any drawing.
inline constexpr double kPictureExtent = 99999;

enum class RenderMode { Puzzle = 0, Solution = 1, Page = 2 };

/// What to draw, and where.
struct RenderRequest {
    int x0 = 0;  ///< the left offset, in twips
    int y0 = 0;  ///< the top offset, in twips
    RenderMode mode = RenderMode::Puzzle;
    std::string title;
    int lineWidth = 4;    ///< the pen of the bridges, in `kPensPerInch`
    Surface::Area limit;  ///< what may be drawn on, in twips from the corner that the offsets count from
};

/// The board of the puzzle, or of the solution on a picture of its own.
PrintedBoard LayoutPrintedPuzzle(const Puzzle& puzzle, const RenderRequest& request);

/// The board of the solution on a page: as large as what is left of the page lets it be, below the heading or, on a
/// page wider than high, beside or below the puzzle, and no larger than the puzzle. `footerHeight` is kept free at the
/// bottom.
PrintedBoard LayoutPrintedSolution(const Puzzle& puzzle, const RenderRequest& request, double footerHeight);

/// Draws the title, the board or both boards, and the footer. Returns the rectangle that holds what was drawn.
///
/// `surface` takes pen widths in `kPensPerInch`. A title that is too long for `request.limit` loses its middle.
Surface::Area RenderPuzzle(const Puzzle& puzzle, Surface& surface, const RenderRequest& request);

/// The title of a picture or page: `kind` is "Puzzle#" or "Solution#".
std::string PrintTitle(std::string_view kind, int number, const std::string& path);

/// The request for a picture with `mode`, and for a page that can be printed within `printable` (from the paper's
/// corner).
RenderRequest PictureRequest(RenderMode mode, std::string title, int lineWidth);
RenderRequest PageRequest(std::string title, int lineWidth, const Surface::Area& printable);

}  // namespace tidewalk
