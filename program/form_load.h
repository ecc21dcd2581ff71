// SPDX-License-Identifier: MIT
// The start of the program, from the program folder to the first puzzle on the board.
#pragma once

#include <optional>
#include <string>

#include "game/game.h"

namespace tidewalk {

/// What the command line asks for.
struct StartRequest {
    std::string appFolder;                           ///< the program folder
    std::string collection;                          ///< a collection to open in place of the last one, or ""
    std::optional<int> puzzleNumber = std::nullopt;  ///< the puzzle of that collection, 1 if not given
    bool folderIsNew = false;                        ///< no start in the program folder has come to its end yet
    int windowNumber = 1;                            ///< which of the windows in the program folder this is, from 1
};

/// Sets the constants and paths, reads what the program folder holds and loads the first puzzle.
///
/// A failure is dealt with on the way, all but one: without the colour schemes of "all.col" the program cannot start.
/// Then the text that says so is returned and nothing was loaded.
std::optional<std::string> Form_Load(Game& game, const StartRequest& request);

}  // namespace tidewalk
