// SPDX-License-Identifier: MIT
#include "model/replace_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "model/file_error.h"
#include "model/system_file.h"

namespace tidewalk {

namespace {

namespace fs = std::filesystem;

/// What is behind the links at `path`, even where the last one leads to no file yet.
fs::path BehindLinks(fs::path path) {
    constexpr int kMostLinks = 40;
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
        if (links == kMostLinks) Fail(path.string(), ELOOP);
        const fs::path next = fs::read_symlink(path, error);
        if (error) Fail(path.string(), error.value());
        // An absolute link replaces the folder, too.
        path = path.parent_path() / next;
    }
    return path;
}

/// The old file, if there is one. Fails where it must not be written: to rename over it would not ask for that right.
std::optional<SystemFile> OpenOld(const std::string& target) {
    std::error_code error;
    if (!fs::exists(fs::status(target, error))) return std::nullopt;
    DemandReadable(target);
    auto old = SystemFile::Open(target, SystemFile::Mode::Change);
    if (!old) Fail(target, errno);
    return old;
}

/// The names that replacements of `target` are written under.
std::string NameBeside(const std::string& target, int number) {
    return target + ".new" + std::to_string(number);
}

constexpr int kMostBeside = 100;

/// Takes away what killed replacements have left beside the target. Who still writes to such a file holds its lock.
void RemoveLeftovers(const std::string& target) {
    for (int number = 1; number <= kMostBeside; ++number) {
        const std::string name = NameBeside(target, number);
        auto file = SystemFile::Open(name, SystemFile::Mode::Change);
        // Names are given from 1 on, and gaps come only from replacements that have just ended.
        if (!file && number > 2) return;
        if (file && file->TryLock() && file->IsAt(name)) std::remove(name.c_str());
    }
}

/// A new, empty file beside the target; it goes away with the object unless it was renamed over the target.
class FileBeside {
 public:
    explicit FileBeside(std::string target) : target_(std::move(target)) {
        for (int number = 1; number <= kMostBeside; ++number) {
            path_ = NameBeside(target_, number);
            file_ = SystemFile::Open(path_, SystemFile::Mode::MakeNew);
            // Between the file's making and its lock somebody may have taken it for a leftover.
            if (file_ && file_->TryLock() && file_->IsAt(path_)) return;
            if (!file_ && errno != EEXIST) break;
        }
        const int reason = errno;
        file_.reset();
        Fail(target_, reason);
    }
    ~FileBeside() {
        if (!renamed_) std::remove(path_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    SystemFile& File() { return *file_; }

    void RenameOverTarget() {
        if (std::rename(path_.c_str(), target_.c_str()) != 0) Fail(target_, errno);
        renamed_ = true;
        SyncFolderOf(target_);
    }

 private:
    std::string target_;
    std::string path_;
    std::optional<SystemFile> file_;
    bool renamed_ = false;
};

}  // namespace

struct Replacement::Parts {
    explicit Parts(const std::string& path) : target(path), beside(path), output(beside.File()), stream(&output) {}

    std::string target;
    FileBeside beside;
    FileOutput output;
    std::ostream stream;
};

Replacement::Replacement(const std::string& path) {
    const std::string target = BehindLinks(path).string();
    const std::optional<SystemFile> old = OpenOld(target);
    RemoveLeftovers(target);
    parts_ = std::make_unique<Parts>(target);
    SystemFile& file = parts_->beside.File();
    if (!(old ? file.TakeModeOf(*old) : file.TakeUsualMode())) Fail(target, errno);
}

Replacement::~Replacement() = default;

std::ostream& Replacement::Stream() {
    return parts_->stream;
}

void Replacement::DemandWritten() {
    if (!parts_->stream) Fail(parts_->target, parts_->output.Failure());
}

void Replacement::Finish() {
    parts_->stream.flush();
    DemandWritten();
    if (!parts_->beside.File().Sync()) Fail(parts_->target, errno);
    parts_->beside.RenameOverTarget();
}

void ReplaceFile(const std::string& path, const std::function<void(std::ostream&)>& write) {
    Replacement replacement(path);
    write(replacement.Stream());
    replacement.Finish();
}

}  // namespace tidewalk
