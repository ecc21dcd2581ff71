// SPDX-License-Identifier: MIT
// Text files that are opened by number and read or written line by line.
#pragma once

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tidewalk {

/// A file could not be opened, read or written. `what()` names the file and gives the system's reason.
class FileError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

enum class FileMode { Input, Output, Append };

/// The files 1 and 2. A number that is in use cannot be opened again before it is closed: a routine closes the numbers
/// it needs first, or fails.
///
/// Lines are read with CR LF or LF at their end, the last one without an end too, and written with CR LF.
class NumberedFiles {
 public:
    static constexpr int kCount = 2;

    NumberedFiles();
    ~NumberedFiles();
    NumberedFiles(const NumberedFiles&) = delete;
    NumberedFiles& operator=(const NumberedFiles&) = delete;

    /// Opens `path` under `number`. Output creates or empties the file, Append creates it when there is none and ends
    /// its last line when that has no end.
    /// Throws FileError when the number is in use or the system refuses; the number is then as it was.
    void Open(int number, const std::string& path, FileMode mode);

    /// Closes the number; a number that is not open stays so. Throws FileError when what was written could not all be
    /// brought to the file; the number is closed all the same.
    void Close(int number);

    /// Closes both numbers and reports nothing.
    void CloseAll() noexcept;

    bool IsOpen(int number) const;

    /// Reads the next line into `line`, without its end. False, with `line` empty, when there is none. Throws FileError
    /// when reading fails, and for a line beyond 64 MiB.
    bool ReadLine(int number, std::string& line);

    /// Passes over the next line; false when there is none.
    bool SkipLine(int number);

    /// Writes the line and its end.
    void Print(int number, std::string_view line);

 private:
    struct File;
    File& At(int number) const;
    bool TakeLine(File& file, std::string* line);

    std::array<std::unique_ptr<File>, kCount> files_;
};

}  // namespace tidewalk
