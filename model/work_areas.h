// SPDX-License-Identifier: MIT
// Making room for a new puzzle.
#pragma once

#include "model/game.h"

namespace tidewalk {

/// Takes the old puzzle's islands, links, bridges, undo list, selection and marks away, whatever its size was.
/// `Rows`, `Cols` and the numbering of the cells stay.
void ResetWorkAreas(Game& game);

/// Numbers the cells of the new `Rows` by `Cols` board and clears what the solver keeps of each.
void NumberNewBoard(Game& game);

/// Fits the cell size to the width of the board's container and lays the board out.
void FitBoard(Game& game);

/// Shows the board's size, the count of the collection and the name of the file behind `path`.
void ShowPuzzleLabels(Game& game, const std::string& path);

}  // namespace tidewalk
