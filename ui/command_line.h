// SPDX-License-Identifier: MIT
// The command line of the windowed program.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "ui/output_files.h"

namespace tidewalk {

struct CommandLine {
    enum class Wish { Run, Help, Version, Wrong };

    Wish wish = Wish::Run;
    QString text;                       ///< what to say in place of running: the help, the version, or what is wrong
    std::optional<QString> folder;      ///< absolute
    std::optional<QString> screenshot;  ///< absolute
    std::optional<std::uint64_t> seed;
    QString collection;  ///< absolute, or empty
    std::optional<int> puzzleNumber;
    std::optional<OutputOrder> output;  ///< a file to write in place of showing a window; its paths are absolute
    bool namesPlatform = false;         ///< Qt was told where to show its windows
    bool ownWindow = false;             ///< a window is to be opened, whichever are open already
};

/// Reads the arguments, the program's name first, each a `FileNameText`. Paths are made absolute from the current
/// directory. The collection may have any name that a file can have; what is to be written has one in UTF-8.
CommandLine ParseCommandLine(const QStringList& arguments);

}  // namespace tidewalk
