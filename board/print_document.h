// SPDX-License-Identifier: MIT
// What all commands that print have in common: the printer, the file, and what is said when it fails.
#pragma once

#include <optional>
#include <string>

#include "game/game.h"

namespace tidewalk {

/// The printer for the next document: the last choice as long as it is there, else the system's.
std::string CurrentPrinter(Game& game);

/// Asks for the name of a file to write, with the usual ending if it has none of those in the patterns. "" when the
/// player thinks better of it, or of overwriting a file.
std::string AskFileName(Game& game, const FileRequest& request);

/// The file for a document on this printer: "" for one that prints on paper, else what the player says. Nothing when
/// the player thinks better of it.
std::optional<std::string> AskDocumentFile(Game& game, const std::string& printer, const std::string& name = "");

void ShowPrintError(Game& game, const std::string& reason);

}  // namespace tidewalk
