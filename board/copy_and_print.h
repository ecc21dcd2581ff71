// SPDX-License-Identifier: MIT
// Copying the puzzle to the clipboard, saving its picture, printing it, and printing puzzles out of a file.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Puts a picture of the puzzle, or of its stored solution, on the clipboard.
void mnucopyclippuz_Click(Game& game);
void mnucopyclipsol_Click(Game& game);

/// Asks for a file name and saves that picture under it, as PNG, SVG or PDF after the name's ending.
void mnusavepuzpicture_Click(Game& game);
void mnusavesolpicture_Click(Game& game);

/// Prints the current puzzle and its solution on one page.
void mnuprintcurrent_Click(Game& game);

/// Shows what that page looks like.
void mnuprintpreview_Click(Game& game);

/// Asks for a file and a range of its puzzles and prints them, a page each. Cancel stops it; then nothing is printed.
/// A puzzle that cannot be read leaves its page empty.
void control27_Click(Game& game);

/// The window appears: counts the puzzles, suggests all of them, and offers the printers.
void Form5_Activate(Game& game, PrintRequest& request);

/// The file picker of the window: takes the chosen file and counts its puzzles, and says so when there are none.
void Form5_gf1_Click(Game& game, PrintRequest& request);

/// OK: checks what was typed. True when the window is to close; else the player was told why not.
bool Form5_Command1_Click(Game& game, PrintRequest& request);

}  // namespace tidewalk
