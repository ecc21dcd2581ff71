// SPDX-License-Identifier: MIT
#include "drawing/render_puzzle.h"

#include <algorithm>
#include <cmath>

#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr int kLargestPrintedCell = 900;
constexpr int kPuzzleBelowOffset = 800;
constexpr int kSolutionBelowOffset = 11800;
constexpr int kHeadingY = 11500;
constexpr int kTitleAboveOffset = 200;
constexpr double kTitleSize = 8;
constexpr double kHeadingSize = 6;
constexpr double kSolutionNumberSize = 5;
constexpr double kFooterSize = 6;
constexpr double kFooterGap = 120;    ///< above the footer, in twips
constexpr double kHeadingGap = 60;    ///< between a heading in the margin and the board, in twips
constexpr double kHeadingRoom = 260;  ///< what a heading above its board takes, in twips
constexpr double kFooterRoom = 300;   ///< kept free at the foot of a wide page, in twips
constexpr double kBoardsApart = 450;  ///< between puzzle and solution on a wide page, in twips

/// A digit reaches about this far from its centre, corner to corner, in twips for each point of its size.
constexpr double kDigitReach = 9.2;

/// `text` without its middle, as long as it can be in `width` twips; characters of several bytes stay whole.
std::string Shortened(Surface& surface, const std::string& text, double width) {
    if (surface.TextExtent(text).width <= width) return text;
    const auto cut = [&text](std::size_t kept) {
        std::size_t head = kept / 2;
        std::size_t tail = text.size() - (kept - head);
        const auto continues = [&text](std::size_t at) {
            return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
        };
        while (head > 0 && continues(head))
            --head;
        while (tail < text.size() && continues(tail))
            ++tail;
        return text.substr(0, head) + "..." + text.substr(tail);
    };
    std::size_t fits = 0;
    for (std::size_t step = std::size_t{1} << 16U; step > 0; step /= 2) {
        if (fits + step < text.size() && surface.TextExtent(cut(fits + step)).width <= width) fits += step;
    }
    return cut(fits);
}

void PrintText(Surface& surface, double x, double y, const std::string& text, Surface::Area& drawn) {
    const Surface::Extent extent = surface.TextExtent(text);
    surface.Print(x, y, text, kBlack);
    Include(drawn, {x, y, x + extent.width, y + extent.height});
}

std::string FooterText() {
    return "Tidewalk - bridges puzzles to play, solve and make";
}

/// A page wider than high has no room at the height where the solution stands on others.
bool IsWidePage(const RenderRequest& request) {
    const Surface::Area& limit = request.limit;
    return request.mode == RenderMode::Page && limit.right - limit.left > limit.bottom - limit.top;
}

/// The heading stands at a fixed height, which boards of 15 to 22 rows reach; it then goes into the left margin. On a
/// wide page it stands above its board.
void PrintHeading(const Puzzle& puzzle, Surface& surface, const RenderRequest& request, const PrintedBoard& solution,
                  Surface::Area& drawn) {
    surface.SetKind(Kind::Heading);
    surface.SetFontSize(kHeadingSize);
    const std::string text = "Solution" + Str(puzzle.Rows) + "x" + NumText(puzzle.Cols);
    if (IsWidePage(request)) return PrintText(surface, solution.left, solution.top - kHeadingRoom, text, drawn);
    const PrintedBoard board = LayoutPrintedPuzzle(puzzle, request);
    const double boardEnd = board.top + puzzle.Rows * board.cell;
    double x = request.x0;
    if (boardEnd > kHeadingY) x -= surface.TextExtent(text).width + kHeadingGap;
    PrintText(surface, std::max(x, request.limit.left), kHeadingY, text, drawn);
}

/// Title on top, footer under the boards of a picture or at the foot of a page.
void PrintTitleLine(Surface& surface, const RenderRequest& request, Surface::Area& drawn) {
    surface.SetKind(Kind::Title);
    surface.SetFontSize(kTitleSize);
    const std::string title = Shortened(surface, request.title, request.limit.right - request.x0);
    PrintText(surface, request.x0, request.y0 - kTitleAboveOffset, title, drawn);
}

void PrintFooter(Surface& surface, const RenderRequest& request, Surface::Area& drawn) {
    surface.SetKind(Kind::Footer);
    surface.SetFontSize(kFooterSize);
    const double height = surface.TextExtent(FooterText()).height;
    const double y = request.mode == RenderMode::Page ? request.limit.bottom - height : drawn.bottom + kFooterGap;
    PrintText(surface, request.x0, y, FooterText(), drawn);
}

double FooterHeight(Surface& surface) {
    surface.SetFontSize(kFooterSize);
    return surface.TextExtent(FooterText()).height + kFooterGap;
}

/// The cell that the larger side of the board asks for, before its limit.
int WantedCell(const Puzzle& puzzle) {
    return 965 - 30 * (puzzle.MaxDim() - 5);
}

/// Takes the board's cells down to what lets it end at `right` and `bottom`.
void FitInto(PrintedBoard& board, const Puzzle& puzzle, double right, double bottom) {
    const double width = (right - board.left) / std::max(puzzle.Cols, 1);
    const double height = (bottom - board.top) / std::max(puzzle.Rows, 1);
    const int fitting = std::max(static_cast<int>(std::floor(std::min(width, height))), 1);
    if (fitting >= board.cell) return;
    board.cell = fitting;
    board.half = RoundHalfEven(fitting / 2.0);
}

/// The solution of a wide page: beside the puzzle or below it, wherever its cells can be larger.
PrintedBoard PlaceBeside(const Puzzle& puzzle, const RenderRequest& request, const PrintedBoard& whole) {
    PrintedBoard beside = whole;
    beside.left += puzzle.Cols * whole.cell + kBoardsApart;
    PrintedBoard below = whole;
    below.top += puzzle.Rows * whole.cell + kBoardsApart + kHeadingRoom;
    for (PrintedBoard* const board : {&beside, &below})
        FitInto(*board, puzzle, request.limit.right, request.limit.bottom - kFooterRoom);
    return beside.cell >= below.cell ? beside : below;
}

}  // namespace

PrintedBoard LayoutPrintedPuzzle(const Puzzle& puzzle, const RenderRequest& request) {
    PrintedBoard board;
    board.cell = std::min(WantedCell(puzzle), kLargestPrintedCell);
    board.half = RoundHalfEven(WantedCell(puzzle) / 2.0);
    board.left = request.x0;
    board.top = request.y0 + kPuzzleBelowOffset;
    board.fontSize = 14 - (puzzle.Rows - 5) / 3.0;
    if (IsWidePage(request)) FitInto(board, puzzle, request.limit.right, request.limit.bottom - kFooterRoom);
    board.lineWidth = LimitedPen(board, request.lineWidth);
    return board;
}

PrintedBoard LayoutPrintedSolution(const Puzzle& puzzle, const RenderRequest& request, double footerHeight) {
    PrintedBoard board = LayoutPrintedPuzzle(puzzle, request);
    if (IsWidePage(request)) {
        board = PlaceBeside(puzzle, request, board);
    } else {
        board.top = request.y0 + kSolutionBelowOffset;
        FitInto(board, puzzle, request.limit.right, request.limit.bottom - footerHeight);
    }
    board.fontSize = std::min(kSolutionNumberSize, board.Radius() / kDigitReach);
    board.lineWidth = LimitedPen(board, request.lineWidth);
    return board;
}

Surface::Area RenderPuzzle(const Puzzle& puzzle, Surface& surface, const RenderRequest& request) {
    const PrintedBoard board = LayoutPrintedPuzzle(puzzle, request);
    const double top = request.y0 - kTitleAboveOffset;
    Surface::Area drawn{static_cast<double>(request.x0), top, static_cast<double>(request.x0), top};
    if (request.mode != RenderMode::Page) surface.Clear(kWhite);
    PrintTitleLine(surface, request, drawn);
    DrawPrintedBoard(puzzle, surface, board, request.mode == RenderMode::Solution, drawn);
    if (request.mode == RenderMode::Page) {
        const PrintedBoard solution = LayoutPrintedSolution(puzzle, request, FooterHeight(surface));
        PrintHeading(puzzle, surface, request, solution, drawn);
        DrawPrintedBoard(puzzle, surface, solution, true, drawn);
    }
    PrintFooter(surface, request, drawn);
    return drawn;
}

std::string PrintTitle(std::string_view kind, int number, const std::string& path) {
    return std::string(kind) + Str(number) + " file:" + path;
}

RenderRequest PictureRequest(RenderMode mode, std::string title, int lineWidth) {
    return {kPictureOffset, kPictureOffset, mode, std::move(title), lineWidth, {0, 0, kPictureExtent, kPictureExtent}};
}

RenderRequest PageRequest(std::string title, int lineWidth, const Surface::Area& printable) {
    return {kPageOffsetX, kPageOffsetY, RenderMode::Page, std::move(title), lineWidth, printable};
}

}  // namespace tidewalk
