// SPDX-License-Identifier: MIT
// A folder of its own for each test.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace tidewalk::test {

/// A folder that exists for as long as the object. It is the current directory meanwhile.
class TempFolder {
 public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The full path of a file in the folder.
    std::string Path(const std::string& name) const { return (path_ / name).string(); }
    /// Writes the bytes as they are and returns the file's path.
    std::string Write(const std::string& name, const std::string& bytes) const;
    std::string Read(const std::string& name) const;
    /// How many files and folders lie in it.
    int Entries() const;

 private:
    std::filesystem::path path_;
    std::filesystem::path before_;
};

/// What is said when the work fails at a file, or "done".
std::string Refusal(const std::function<void()>& work);

}  // namespace tidewalk::test
