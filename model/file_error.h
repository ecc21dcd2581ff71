// SPDX-License-Identifier: MIT
// What went wrong with a file.
#pragma once

#include <stdexcept>
#include <string>

namespace tidewalk {

/// A file could not be opened, read or written. `what()` names the file and gives the system's reason.
class FileError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Throws a FileError for `path` with the system's text for `reason`, a value of `errno`; 0 stands for a failure of
/// input or output that the system gave no reason for.
[[noreturn]] void Fail(const std::string& path, int reason);

/// Fails for what only looks like a file to read. The system opens a folder for reading without complaint and refuses
/// only the read; a pipe blocks for ever when nobody is at its other end, and a device may be read without end.
void DemandReadable(const std::string& path);

/// Fails for what cannot be a file to write: a folder, a pipe, a disk.
void DemandWritable(const std::string& path);

}  // namespace tidewalk
