// SPDX-License-Identifier: MIT
// Printing puzzles as a booklet, and the window that asks for it.
#pragma once

#include <string>

#include "booklet/booklet.h"
#include "game/game.h"

namespace tidewalk {

/// Asks for a booklet and prints it. Cancel stops that at any moment; then nothing is printed. The puzzle on the board
/// has no part in it and stays.
void mnuprintbooklet_Click(Game& game);

/// The window appears: suggests all puzzles and what was chosen last, and offers the printers.
void Booklet_Activate(Game& game, BookletRequest& request);

/// Its file picker: takes the chosen file, and says so when there are no puzzles in it.
void Booklet_Browse(Game& game, BookletRequest& request);

/// A file was chosen or typed: counts its puzzles and suggests all of them, or as many as a booklet holds.
void Booklet_TakeFile(Game& game, BookletRequest& request);

/// Print: checks what was typed and remembers what was chosen. True when the window is to close; else the player was
/// told why not.
bool Booklet_Accept(Game& game, BookletRequest& request);

/// Why no booklet can be made of the puzzles that are asked for, in words for the player; "" when nothing is known
/// against it.
std::string WhyNoBooklet(const BookletRequest& request);
/// What is said when a page could not be drawn as it was laid out.
std::string ChangedText(const std::string& collection);
/// Why the booklet that came of them has no pages; "" when it has some.
std::string WhyNoPages(const Booklet& booklet);

/// The puzzles that are asked for. They may be none that there are.
PuzzleRange RangeOf(const BookletRequest& request);

/// What the document of a booklet tells of itself; where it goes, and its sheets, are left to whoever begins it.
DocumentSetup BookletSetup(const BookletDesign& design, const std::vector<BookletEntry>& entries,
                           const std::string& collection);

/// The booklet that is asked for, in its order, as far as `contents` are known.
Booklet MakeBooklet(const BookletRequest& request, const BookletContents& contents, const Sheet& sheet);

}  // namespace tidewalk
