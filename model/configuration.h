// SPDX-License-Identifier: MIT
// The configuration file "tide.cfg": the colour scheme, ten numbers and the collection, one line each.
#pragma once

#include "game/game.h"

namespace tidewalk {

/// Reads the options, the scheme's name and the last puzzle from "tide.cfg" in the program folder. Numbers out of range
/// are brought into it.
///
/// A file that is missing, cut off or no configuration is reported, and one with the defaults takes its place. The
/// options and the puzzle number are then the defaults; `CollectionPath` keeps what it held.
void ReadcfgFile(Game& game);

/// Puts the defaults into the "tide.cfg" of a program folder that was just made, so that nothing has to be reported.
/// One that cannot be written is reported when it is read.
void WriteFirstConfiguration(const Game& game);

/// Writes "tide.cfg" from the current values. False after a message when it could not be written; the old file is then
/// whole.
bool SavecfgFile(Game& game);

/// The menu's "save options".
void mnuoptsave_Click(Game& game);

}  // namespace tidewalk
