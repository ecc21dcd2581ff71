// SPDX-License-Identifier: MIT
#include "board/print_pages.h"

#include "drawing/puzzle_svg.h"
#include "model/plain_grid.h"

namespace tidewalk {

PuzzlePicture PictureOf(const Puzzle& puzzle, const RenderRequest& request) {
    PuzzlePicture picture{request.title, {}, PuzzleSvg(puzzle, request), ""};
    picture.draw = [puzzle, request](Surface& surface) { return RenderPuzzle(puzzle, surface, request); };
    for (const std::string& row : PlainGrid(puzzle))
        picture.text += row + "\n";
    return picture;
}

void DrawPage(const PuzzlePage& content, int lineWidth, Surface& page, const Surface::Area& printable) {
    RenderPuzzle(content.puzzle, page, PageRequest(content.title, lineWidth, printable));
}

PrintEnd PrintPages(PrintDocument& document, int pages, const DrawNumbered& draw, const MayGoOn& mayGoOn) {
    for (int number = 0; number < pages; ++number) {
        if (!mayGoOn()) return PrintEnd::Cancelled;
        // The page comes before the puzzle, so that the last one is not followed by an empty sheet.
        if (number > 0 && !document.NewPage()) return PrintEnd::Failed;
        draw(number, document.Page(), document.PageSheet());
    }
    if (!mayGoOn()) return PrintEnd::Cancelled;
    return document.End() ? PrintEnd::Printed : PrintEnd::Failed;
}

std::optional<PuzzlePage> PageOf(LineIndex& lines, const std::string& collection, int number) {
    const auto puzzle = ReadPuzzle(lines, collection, number);
    if (!puzzle) return std::nullopt;
    return PuzzlePage{*puzzle, PrintTitle("Puzzle#", number, collection)};
}

}  // namespace tidewalk
