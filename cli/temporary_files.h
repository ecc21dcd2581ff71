// SPDX-License-Identifier: MIT
// Files that exist only while a command runs, in the system's folder for such files.
#pragma once

#include <optional>
#include <string>

#include "cli/console.h"

namespace tidewalk {

/// An empty file of its own, which goes away with the object.
class TemporaryFile {
 public:
    /// Throws FileError when none can be made.
    TemporaryFile();
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Path() const { return path_; }

 private:
    std::string path_;
};

/// A file to read: the one at `path`, or for "-" a copy of the standard input.
class InputFile {
 public:
    /// Throws FileError when the input cannot be copied or the file cannot be read.
    InputFile(Console& console, const std::string& path);

    const std::string& Path() const { return path_; }

 private:
    std::optional<TemporaryFile> copy_;
    std::string path_;
};

/// Writes what the file at `path` holds to the standard output. Throws FileError when it cannot be read.
void CopyToOutput(Console& console, const std::string& path);

}  // namespace tidewalk
