// SPDX-License-Identifier: MIT
// The collections that the player has opened last.
#pragma once

#include <string>
#include <vector>

#include "game/game.h"

namespace tidewalk {

inline constexpr std::size_t kMostRecentFiles = 10;

/// Their paths, the newest first, absolute and byte for byte. What is kept by other windows shows, too.
std::vector<std::string> RecentFiles(Game& game);

/// The collection at `path` was opened by the player: it comes to the top of the list. The work file of new puzzles is
/// left out.
void RememberOpened(Game& game, const std::string& path);

/// Takes the collection at `path` off the list.
void ForgetOpened(Game& game, const std::string& path);

/// Empties the list.
void mnuclearrecent_Click(Game& game);

/// True when there is something to be emptied.
bool HasRecentFiles(const Game& game);

/// What the paths are called beside each other: the file's name, with as many of the folders above it as tell it from
/// the others.
std::vector<std::string> ShortNames(const std::vector<std::string>& paths);

}  // namespace tidewalk
