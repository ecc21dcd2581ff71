// SPDX-License-Identifier: MIT
#include "model/replace_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "model/file_error.h"

namespace tidewalk {

namespace {

namespace fs = std::filesystem;

/// What is behind the links at `path`, even where the last one leads to no file yet.
fs::path BehindLinks(fs::path path) {
    constexpr int kMostLinks = 40;
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
        if (links == kMostLinks) Fail(path, ELOOP);
        const fs::path next = fs::read_symlink(path, error);
        if (error) Fail(path, error.value());
        // An absolute link replaces the folder, too.
        path = path.parent_path() / next;
    }
    return path;
}

/// Fails where an old file must not be written: to rename over it would not ask for that right.
void DemandWritable(const fs::path& target) {
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    if (!fs::exists(status)) return;
    if (fs::is_directory(status)) Fail(target, EISDIR);
    if (!fs::is_regular_file(status)) Fail(target, EINVAL);
    std::FILE* const file = std::fopen(target.string().c_str(), "r+b");
    if (file == nullptr) Fail(target, errno);
    std::fclose(file);
}

/// A new, empty file beside the target; it goes away with the object unless it was renamed over the target.
class FileBeside {
 public:
    explicit FileBeside(const fs::path& target) : target_(target) {
        constexpr int kTries = 100;
        for (int number = 1; number <= kTries; ++number) {
            path_ = target;
            path_ += ".new" + std::to_string(number);
            // "x": a file of that name may be another program's.
            if (std::FILE* const file = std::fopen(path_.string().c_str(), "wbx")) {
                std::fclose(file);
                return;
            }
            if (errno != EEXIST) break;
        }
        Fail(target, errno);
    }
    ~FileBeside() {
        std::error_code ignored;
        if (!renamed_) fs::remove(path_, ignored);
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    const fs::path& Path() const { return path_; }

    void RenameOverTarget() {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::exists(old)) fs::permissions(path_, old.permissions(), error);
        error.clear();
        fs::rename(path_, target_, error);
        if (error) Fail(target_, error.value());
        renamed_ = true;
    }

 private:
    fs::path target_;
    fs::path path_;
    bool renamed_ = false;
};

}  // namespace

void ReplaceFile(const std::string& path, const std::function<void(std::ostream&)>& write) {
    const fs::path target = BehindLinks(path);
    DemandWritable(target);
    FileBeside beside(target);
    errno = 0;
    std::ofstream stream(beside.Path(), std::ios::binary);
    if (stream) write(stream);
    // The last bytes reach the disk only now, and may not fit.
    if (stream) stream.close();
    if (!stream) Fail(target, errno);
    beside.RenameOverTarget();
}

}  // namespace tidewalk
