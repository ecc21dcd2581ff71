// SPDX-License-Identifier: MIT
#include "drawing/puzzle_svg.h"

#include "drawing/svg_surface.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// "12 islands", "1 island".
std::string Counted(int count, const std::string& what) {
    return NumText(count) + " " + what + (count == 1 ? "" : "s");
}

/// "Row 1: 3 in column 1, 4 in column 5."
std::string IslandsOf(const Puzzle& puzzle) {
    std::string text;
    int row = 0;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (puzzle.IslandAt(id) <= 0) continue;
        const CellPlace place = puzzle.PlaceOf(id);
        text += place.row == row ? ", " : (row == 0 ? " Row " : ". Row ") + NumText(place.row) + ": ";
        text += NumText(puzzle.IslandAt(id)) + " in column " + NumText(place.col);
        row = place.row;
    }
    return text.empty() ? text : text + ".";
}

/// "Bridges: two in row 1 from column 1 to 5, one in column 5 from row 1 to 3."
std::string BridgesOf(const Puzzle& puzzle) {
    std::string text;
    for (const Link& link : puzzle.LinkList) {
        if (link.Bridges() == 0) continue;
        const CellPlace a = puzzle.PlaceOf(link.first);
        const CellPlace b = puzzle.PlaceOf(link.second);
        text += text.empty() ? " Bridges: " : ", ";
        text += link.Bridges() == 2 ? "two in " : "one in ";
        if (a.row == b.row) {
            text += "row " + NumText(a.row) + " from column " + NumText(a.col) + " to " + NumText(b.col);
        } else {
            text += "column " + NumText(a.col) + " from row " + NumText(a.row) + " to " + NumText(b.row);
        }
    }
    return text.empty() ? text : text + ".";
}

std::string Description(const Puzzle& puzzle, bool withBridges) {
    std::string text = withBridges ? "The solution of a bridges puzzle of " : "A bridges puzzle of ";
    text += Counted(puzzle.Rows, "row") + " and " + Counted(puzzle.Cols, "column") + " with " +
            Counted(puzzle.IslandCount(), "island") + "." + IslandsOf(puzzle);
    return withBridges ? text + BridgesOf(puzzle) : text;
}

}  // namespace

std::string PuzzleSvg(const Puzzle& puzzle, const RenderRequest& request) {
    SvgSurface surface(kTwipsPerPen);
    const Surface::Area drawn = RenderPuzzle(puzzle, surface, request);
    const Surface::Area frame{drawn.left - kPictureMargin, drawn.top - kPictureMargin, drawn.right + kPictureMargin,
                              drawn.bottom + kPictureMargin};
    return surface.Document(frame, request.title, Description(puzzle, request.mode != RenderMode::Puzzle));
}

}  // namespace tidewalk
