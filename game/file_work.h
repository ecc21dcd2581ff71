// SPDX-License-Identifier: MIT
// Working with files that other programs work with, too.
#pragma once

#include <string>

#include "game/game.h"
#include "model/system_file.h"

namespace tidewalk {

/// What is to be asked while another program holds the file at `path`: says in the status line that it is waited for,
/// once that takes longer than a moment, and gives up after a while.
MayWait WaitingFor(Game& game, const std::string& path);

/// What is said when a torn record was taken off the end of the file at `path`.
std::string TornRecordText(const std::string& path);

/// The name of a work file in the current directory: `name` itself, or in a further window of the same program folder
/// one with the window's number before its ending, so that windows do not meet in it.
std::string WorkFile(const Game& game, const std::string& name);

}  // namespace tidewalk
