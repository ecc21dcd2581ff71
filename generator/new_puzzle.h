// SPDX-License-Identifier: MIT
// The New Puzzle command, the size of the puzzles that it makes, and the Cancel button.
#pragma once

#include <string_view>

#include "model/game.h"
#include "model/navigation.h"

namespace tidewalk {

/// What the size box asks for. Sides are whole numbers of any size, 0 where the text gives none.
struct WantedSize {
    bool random = false;  ///< the box is empty: each side is drawn
    int rows = 0;
    int cols = 0;

    bool operator==(const WantedSize&) const = default;
};

/// Reads a size: "9" is 9 by 9, "9x12" or "9X12" 9 rows and 12 columns, nothing but blanks a random size.
WantedSize ParseGridSize(std::string_view text);

/// True when both sides are 7..25.
bool IsCreatableSize(int rows, int cols);

/// Makes a puzzle of the size in the size box, writes it to "temp.txt" in the current directory and loads it. When that
/// fails, the puzzle that was current before is loaded again.
void cmdnew1_Click(Game& game);
void mnunewpuzx_Click(Game& game);

/// Asks the running job to stop; without one it empties the status line.
void cmdcancel_Click(Game& game);

/// The right button empties the size box, which stands for a random size.
void GridSize_MouseDown(Game& game, MouseButton button);

/// Takes everything off the board. Its size stays.
void ShowEmptyBoard(Game& game);

/// Loads puzzle `number` of the collection at `path` again after a job that worked on the board. When it is not there
/// any more the board is left empty.
void ReloadPuzzle(Game& game, const std::string& path, int number);

}  // namespace tidewalk
