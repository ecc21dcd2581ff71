// SPDX-License-Identifier: MIT
// A booklet of puzzles: which page has what, and what each looks like.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "booklet/booklet_contents.h"
#include "booklet/booklet_design.h"
#include "drawing/sheet.h"
#include "drawing/surface.h"

namespace tidewalk {

/// Reads a puzzle of the booklet by its number in the collection, with the bridges of its solution.
using PuzzleSource = std::function<std::optional<Puzzle>(int number)>;

/// One board on a page.
struct PlacedBoard {
    std::size_t entry = 0;  ///< the index of its puzzle among the booklet's
    bool solution = false;
    int cell = 0;     ///< in twips
    double left = 0;  ///< of the board, in twips
    double top = 0;
    double captionTop = 0;    ///< where its caption begins, in twips; captions stand above the middle of the board
    double captionWidth = 0;  ///< the room that the caption has
};

struct BookletPage {
    enum class Kind { Cover, Rules, Puzzles, Solutions };

    Kind kind = Kind::Puzzles;
    std::vector<PlacedBoard> boards;
};

struct PageFrame;

/// A booklet laid out for its sheets. It holds no puzzle, so that any number of pages takes little memory; whoever
/// draws a page reads its puzzles then.
///
/// All puzzles of a page have cells of one size, as large as the one that needs most room allows, and never smaller
/// than `kSmallestPuzzleCell`; solutions have theirs, never smaller than `kSmallestSolutionCell`.
class Booklet {
 public:
    Booklet(const BookletDesign& design, std::vector<BookletEntry> entries, const Sheet& sheet);

    const BookletDesign& Design() const { return design_; }
    const std::vector<BookletEntry>& Entries() const { return entries_; }  ///< in the booklet's order
    const std::vector<BookletPage>& Pages() const { return pages_; }

    /// Which puzzles do not fit on the sheet at a size that can be read, in words for the player; "" when all fit. The
    /// booklet has no pages then.
    const std::string& Misfit() const { return misfit_; }

    /// Draws page `index` of `Pages`, counted from 0. `surface` takes pen widths in `kPensPerInch`. False when a puzzle
    /// cannot be read any more, or has become another one; its place stays empty.
    bool DrawPage(int index, Surface& surface, const PuzzleSource& source) const;

 private:
    void DrawFrame(int index, Surface& surface, const PageFrame& frame) const;
    void DrawBoard(const PlacedBoard& placed, const Puzzle& puzzle, Surface& surface) const;

    BookletDesign design_;
    std::vector<BookletEntry> entries_;
    Sheet sheet_;
    std::vector<BookletPage> pages_;
    std::string misfit_;
};

}  // namespace tidewalk
