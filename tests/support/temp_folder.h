// SPDX-License-Identifier: MIT
// A folder of its own for each test.
#pragma once

#include <sys/resource.h>

#include <csignal>
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

/// Files cannot grow beyond some bytes for as long as it lives, as on a disk that is full.
class NoSpace {
 public:
    NoSpace() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit few{5, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &few);
    }
    ~NoSpace() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    NoSpace(const NoSpace&) = delete;
    NoSpace& operator=(const NoSpace&) = delete;

 private:
    void (*handler_)(int);
    rlimit before_{};
};

/// What is said when the work fails at a file, or "done".
std::string Refusal(const std::function<void()>& work);

}  // namespace tidewalk::test
