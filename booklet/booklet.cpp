// SPDX-License-Identifier: MIT
#include "booklet/booklet.h"

#include <algorithm>
#include <iterator>

#include "booklet/front_pages.h"
#include "booklet/page_layout.h"
#include "booklet/print_text.h"
#include "model/numbers.h"
#include "solver/difficulty.h"

namespace tidewalk {

namespace {

constexpr double kHeaderSize = 9;  ///< in points, and so are the others
constexpr double kCaptionSize = 10;
constexpr double kSolutionCaptionSize = 7;
constexpr double kHeadingSize = 14;
constexpr double kSmallestSize = 6;
constexpr std::string_view kDot = " \u00B7 ";

std::string MisfitText(const std::vector<BookletEntry>& entries, const std::vector<std::size_t>& misfits,
                       bool solutions, int perPage) {
    const BookletEntry& first = entries[misfits.front()];
    std::string text = "Puzzle " + NumText(first.number) + " of " + SizeText(first.size);
    const auto others = static_cast<int>(misfits.size()) - 1;
    if (others > 0) text += " and " + NumText(others) + (others == 1 ? " other" : " others");
    text += others > 0 ? " do not fit on the page" : " does not fit on the page";
    if (!solutions && perPage > 1) text += " beside " + NumText(perPage - 1) + (perPage == 2 ? " other" : " others");
    return text + " at a size that can be read.";
}

std::string CaptionOf(const BookletDesign& design, const BookletEntry& entry, bool solution) {
    if (solution && design.solutions == BookletDesign::Solutions::Beneath) return "Solution";
    std::string text;
    const auto add = [&text](std::string_view part) {
        if (!text.empty()) text += kDot;
        text += part;
    };
    if (solution || design.ShowsNumbers()) add("No. " + NumText(entry.number));
    if (solution) return text;
    if (design.sizes) add(SizeText(entry.size));
    if (design.grades && entry.score) add(WordsFor(GradeOf(*entry.score)));
    return text;
}

}  // namespace

Booklet::Booklet(const BookletDesign& design, std::vector<BookletEntry> entries, const Sheet& sheet)
    : design_(Tidied(design)), entries_(std::move(entries)), sheet_(sheet) {
    const Surface::Area body = FrameOf(design_, sheet).body;
    std::vector<std::size_t> misfits;
    std::vector<BookletPage> pages = LayOutPuzzles(design, entries_, body, misfits);
    if (!misfits.empty()) {
        misfit_ = MisfitText(entries_, misfits, false, design.perPage);
        return;
    }
    if (design.solutions == BookletDesign::Solutions::AtEnd) {
        Surface::Area below = body;
        below.top += kSolutionsHeading;
        std::vector<BookletPage> solutions = LayOutSolutions(entries_, below, misfits);
        if (!misfits.empty()) {
            misfit_ = MisfitText(entries_, misfits, true, design.perPage);
            return;
        }
        pages.insert(pages.end(), std::move_iterator(solutions.begin()), std::move_iterator(solutions.end()));
    }
    if (design.cover) pages_.push_back({BookletPage::Kind::Cover, {}});
    if (design.rules) pages_.push_back({BookletPage::Kind::Rules, {}});
    pages_.insert(pages_.end(), std::move_iterator(pages.begin()), std::move_iterator(pages.end()));
}

bool Booklet::DrawPage(int index, Surface& surface, const PuzzleSource& source) const {
    const BookletPage& page = pages_.at(static_cast<std::size_t>(index));
    const PageFrame frame = FrameOf(design_, sheet_);
    if (page.kind == BookletPage::Kind::Cover) {
        const auto emblem = entries_.empty() ? std::nullopt : source(entries_.front().number);
        DrawCover({design_.title, design_.author, ContentsText(entries_), emblem.value_or(Puzzle()), design_.shape},
                  surface, frame.body);
        return true;
    }
    DrawFrame(index, surface, frame);
    if (page.kind == BookletPage::Kind::Rules) DrawRules(design_.shape, surface, frame.body);
    if (page.kind == BookletPage::Kind::Solutions) {
        const double middle = (frame.body.left + frame.body.right) / 2;
        surface.SetKind(Kind::Heading);
        PrintLine(surface, middle, frame.body.top, "Solutions", kHeadingSize, kSmallestSize,
                  frame.body.right - frame.body.left);
    }
    bool asKnown = true;
    for (const PlacedBoard& board : page.boards) {
        const BookletEntry& entry = entries_[board.entry];
        const auto puzzle = source(entry.number);
        const bool isKnown = puzzle && Fingerprint(*puzzle) == entry.islands;
        if (isKnown) DrawBoard(board, *puzzle, surface);
        asKnown = asKnown && isKnown;
    }
    return asKnown;
}

/// The header and the page number.
void Booklet::DrawFrame(int index, Surface& surface, const PageFrame& frame) const {
    const double middle = (frame.body.left + frame.body.right) / 2;
    const double width = frame.body.right - frame.body.left;
    surface.SetKind(Kind::Title);
    PrintLine(surface, middle, frame.headerTop, design_.Header(), kHeaderSize, kHeaderSize, width);
    surface.SetKind(Kind::Footer);
    if (design_.pageNumbers)
        PrintLine(surface, middle, frame.footerTop, NumText(index + 1), kHeaderSize, kSmallestSize, width);
}

void Booklet::DrawBoard(const PlacedBoard& placed, const Puzzle& puzzle, Surface& surface) const {
    const PrintedBoard board = BoardOfCell(placed.cell, placed.left, placed.top, design_.shape, design_.lineWidth);
    if (placed.captionWidth > 0) {
        const BookletEntry& entry = entries_[placed.entry];
        surface.SetKind(Kind::Heading);
        PrintLine(surface, placed.left + puzzle.Cols * placed.cell / 2.0, placed.captionTop,
                  CaptionOf(design_, entry, placed.solution), placed.solution ? kSolutionCaptionSize : kCaptionSize,
                  kSmallestSize, placed.captionWidth);
    }
    Surface::Area drawn;
    DrawPrintedBoard(puzzle, surface, board, placed.solution, drawn);
}

}  // namespace tidewalk
