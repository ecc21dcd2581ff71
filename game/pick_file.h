// SPDX-License-Identifier: MIT
// Asking for files.
#pragma once

#include <string>

#include "game/game.h"

namespace tidewalk {

/// Asks for a file name and keeps the current directory, which a file dialog may change. "" when nothing was chosen.
std::string PickFile(Game& game, const FileRequest& request);

/// True when the file may be written: there is none, it is empty, or the player says so.
bool ConfirmOverwrite(Game& game, const std::string& name);

}  // namespace tidewalk
