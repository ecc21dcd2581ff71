// SPDX-License-Identifier: MIT
// The AutoSolve command.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// Solves the puzzle on the board, shows the solution and writes it beside the collection; or says that it cannot, and
/// brings the puzzle back as it was.
void mnuautosol_Click(Game& game);

/// The name of the file for solutions of a collection: "-solution" before the last "." of its path.
std::string SolutionPath(const std::string& collectionPath);

}  // namespace tidewalk
