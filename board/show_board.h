// SPDX-License-Identifier: MIT
// Bringing the board to the screen.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Draws the whole board, with the player's bridges or with the stored solution in their place.
void RedrawBoard(Game& game, bool showSolution);

/// Lays the board out anew with cells of about `cellSize` twips, in the middle of its container. Nothing is drawn.
void ZoomBoard(Game& game, int cellSize);

/// Shows the board, and what is over it, with cells of another size.
void ZoomTo(Game& game, int cellSize);

/// Puts an empty board of this size, fitted to the container, in the place of the puzzle; bridges and moves stay until
/// a puzzle comes. The size that "Reset zoom" goes back to stays that of the last loaded puzzle.
void LayoutNewBoard(Game& game, BoardSize size);

/// Takes bridges, moves, selection and marks off the board with the old puzzle, and puts a new one there without laying
/// it out.
void PutOnBoard(Game& game, const Puzzle& puzzle);

/// Lays the new puzzle on the board out so that it fits the container.
void FitBoard(Game& game);

/// Shows the board's size, the count of the collection and the name of the file behind `path`.
void ShowPuzzleLabels(Game& game, const std::string& path);

/// Takes everything off the board. Its size stays.
void ShowEmptyBoard(Game& game);

}  // namespace tidewalk
