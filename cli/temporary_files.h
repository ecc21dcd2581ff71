// SPDX-License-Identifier: MIT
// Files that exist only while a command runs, in the system's folder for such files.
#pragma once

#include <ostream>
#include <string>

#include "cli/console.h"
#include "model/may_go_on.h"
#include "model/system_file.h"

namespace tidewalk {

/// An empty file without a name, which is gone with the program, however that ends. Throws FileError when none can be
/// made.
SystemFile TemporaryFile();

/// A file to read again and again: the one at a path, or a copy of what comes only once.
class InputFile {
 public:
    /// Throws FileError when the input cannot be copied or the file cannot be read. Copying ends early when the run is
    /// to stop.
    InputFile(Console& console, const std::string& path);

    const SystemFile& File() const { return file_; }

    /// Where it can be opened for as long as the object lives.
    const std::string& Path() const { return path_; }

 private:
    SystemFile file_;
    std::string path_;
};

/// Copies the file to the stream until its end, until `mayGoOn` says no, or until nobody takes any more. Throws
/// FileError when it cannot be read; messages call it `name`.
void CopyTo(std::ostream& out, const SystemFile& file, const std::string& name, const MayGoOn& mayGoOn);

}  // namespace tidewalk
