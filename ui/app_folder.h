// SPDX-License-Identifier: MIT
// The program folder, where "tide.cfg", "all.col", "tide.htm" and the puzzles lie.
#pragma once

#include <QString>
#include <optional>

namespace tidewalk {

/// The folders among which the program folder is chosen.
struct FolderPlaces {
    QString executableFolder;
    QString userDataFolder;  ///< by the XDG rules, with "tidewalk" in it
    QString shareFolder;     ///< what was installed with the program
};

/// The places of this run of the program.
FolderPlaces SystemPlaces();

/// The folder of what ships with a program in `executableFolder`: `installed`, absolute or as seen from there; where
/// that is missing, as in a build tree or a copy moved elsewhere, "share/tidewalk" beside that folder.
QString ShareFolder(const QString& executableFolder, const QString& installed);

struct AppFolderChoice {
    QString folder;      ///< absolute
    QString error;       ///< why there is none; empty on success
    bool isNew = false;  ///< no start in it has come to its end yet
};

/// Chooses the program folder: `requested` if it is given; else the program's own folder, if it holds "all.col" and can
/// be written; else the user's data folder, which is made if need be and filled with what it lacks of the share folder.
///
/// A file there that nobody has changed since it shipped is renewed when the share folder brings another one; a file
/// that was changed is left alone. "shipped.txt" in the share folder lists what ever shipped, a SHA-256 and a name a
/// line.
AppFolderChoice ChooseAppFolder(const std::optional<QString>& requested, const FolderPlaces& places);

/// The program has started in its folder: what a first start puts there is there.
void EndFirstStart(const AppFolderChoice& choice);

}  // namespace tidewalk
