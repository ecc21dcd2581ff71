// SPDX-License-Identifier: MIT
#include "model/system_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <thread>
#include <utility>

#include "model/file_error.h"

namespace tidewalk {

namespace {

/// What every program of this system may do with a new file, less the user's mask.
constexpr mode_t kUsualRights = 0666;
constexpr mode_t kOwnRights = 0600;

/// A time of the system in nanoseconds. One so far away that it does not fit is no time that a change is given.
std::int64_t NanosecondsOf(const timespec& time) {
    constexpr std::int64_t kPerSecond = 1'000'000'000;
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / kPerSecond - 1;
    return std::clamp<std::int64_t>(time.tv_sec, -kMost, kMost) * kPerSecond + time.tv_nsec;
}

int FlagsOf(SystemFile::Mode mode) {
    switch (mode) {
        case SystemFile::Mode::Change:
            return O_RDWR | O_APPEND;
        case SystemFile::Mode::MakeOrChange:
            return O_RDWR | O_APPEND | O_CREAT;
        case SystemFile::Mode::MakeNew:
            return O_RDWR | O_APPEND | O_CREAT | O_EXCL;
        case SystemFile::Mode::Read:
            break;
    }
    return O_RDONLY;
}

/// Some file systems, those of networks among them, know no locks.
bool KnowsNoLocks(int reason) {
    return reason == ENOLCK || reason == EOPNOTSUPP || reason == ENOSYS || reason == EINVAL;
}

}  // namespace

std::optional<SystemFile> SystemFile::Open(const std::string& path, Mode mode) {
    // Without O_NONBLOCK a pipe that nobody holds the other end of would not even open.
    const int flags = FlagsOf(mode) | O_CLOEXEC | O_NONBLOCK;
    const int descriptor = open(path.c_str(), flags, mode == Mode::MakeNew ? kOwnRights : kUsualRights);
    if (descriptor < 0) return std::nullopt;
    return SystemFile(descriptor);
}

std::optional<SystemFile> SystemFile::MakeNameless(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnRights);
    if (descriptor >= 0) return SystemFile(descriptor);
    // Not every file system can do without a name, not even for the beginning.
    std::string path = (std::filesystem::path(folder) / "tidewalk-XXXXXX").string();
    const int named = mkostemp(path.data(), O_CLOEXEC);
    if (named < 0) return std::nullopt;
    unlink(path.c_str());
    return SystemFile(named);
}

SystemFile::SystemFile(SystemFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

SystemFile::~SystemFile() {
    if (descriptor_ >= 0) close(descriptor_);
}

bool SystemFile::IsRegular() const {
    struct stat status {};
    return fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
}

std::uint64_t SystemFile::Size() const {
    struct stat status {};
    return fstat(descriptor_, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::optional<FileState> SystemFile::State() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) return std::nullopt;
    return FileState{S_ISREG(status.st_mode),
                     status.st_dev,
                     status.st_ino,
                     static_cast<std::uint64_t>(status.st_size),
                     NanosecondsOf(status.st_mtim),
                     NanosecondsOf(status.st_ctim)};
}

bool SystemFile::IsAt(const std::string& path) const {
    struct stat own {};
    struct stat named {};
    return fstat(descriptor_, &own) == 0 && stat(path.c_str(), &named) == 0 && own.st_dev == named.st_dev &&
           own.st_ino == named.st_ino;
}

bool SystemFile::TryLock() {
    return flock(descriptor_, LOCK_EX | LOCK_NB) == 0 || KnowsNoLocks(errno);
}

bool SystemFile::TryLockPlace(int number) {
    struct flock place {};
    place.l_type = F_WRLCK;
    place.l_whence = SEEK_SET;
    place.l_start = number;
    place.l_len = 1;
    return fcntl(descriptor_, F_OFD_SETLK, &place) == 0 || KnowsNoLocks(errno);
}

std::optional<std::size_t> SystemFile::ReadInto(std::uint64_t from, std::span<char> bytes) const {
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count =
            pread(descriptor_, bytes.data() + filled, bytes.size() - filled, static_cast<off_t>(from + filled));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

std::string SystemFile::Read(std::uint64_t from, std::size_t most) const {
    std::string bytes(most, '\0');
    bytes.resize(ReadInto(from, bytes).value_or(0));
    return bytes;
}

bool SystemFile::Append(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool SystemFile::CutTo(std::uint64_t size) {
    return ftruncate(descriptor_, static_cast<off_t>(size)) == 0;
}

bool SystemFile::Sync() {
    // What cannot be synced, as a device cannot, was not kept from the disk by us.
    return fsync(descriptor_) == 0 || errno == EINVAL || errno == EROFS;
}

bool SystemFile::TakeModeOf(const SystemFile& other) {
    constexpr mode_t kRights = 07777;
    struct stat status {};
    return fstat(other.descriptor_, &status) == 0 && fchmod(descriptor_, status.st_mode & kRights) == 0;
}

bool SystemFile::TakeUsualMode() {
    // The mask can only be read by setting it.
    const mode_t mask = umask(0);
    umask(mask);
    return fchmod(descriptor_, kUsualRights & ~mask) == 0;
}

void SyncFolderOf(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    // Where a folder cannot be opened or synced, the file itself is on the disk all the same.
    if (auto opened = SystemFile::Open(folder.empty() ? "." : folder.string(), SystemFile::Mode::Read)) opened->Sync();
}

FileInput::FileInput(const SystemFile& file, std::string name, std::uint64_t from, std::size_t most)
    : file_(file), name_(std::move(name)), position_(from), buffer_(most) {}

FileInput::int_type FileInput::underflow() {
    const auto count = file_.ReadInto(position_, buffer_);
    if (!count) Fail(name_, errno);
    if (*count == 0) return traits_type::eof();
    position_ += *count;
    setg(buffer_.data(), buffer_.data(), buffer_.data() + *count);
    return traits_type::to_int_type(*gptr());
}

FileOutput::FileOutput(SystemFile& file) : file_(file) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

bool FileOutput::Flush() {
    const std::string_view waiting(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    if (failure_ == 0 && !file_.Append(waiting)) failure_ = errno != 0 ? errno : EIO;
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return failure_ == 0;
}

FileOutput::int_type FileOutput::overflow(int_type character) {
    if (!Flush()) return traits_type::eof();
    return traits_type::eq_int_type(character, traits_type::eof()) ? traits_type::not_eof(character)
                                                                   : sputc(traits_type::to_char_type(character));
}

int FileOutput::sync() {
    return Flush() ? 0 : -1;
}

SystemFile OpenLocked(const std::string& path, SystemFile::Mode mode, const MayWait& mayWait) {
    constexpr std::chrono::milliseconds kStep(10);
    for (;;) {
        auto file = SystemFile::Open(path, mode);
        if (!file) Fail(path, errno);
        if (!file->IsRegular()) return std::move(*file);
        while (!file->TryLock()) {
            if (errno != EWOULDBLOCK && errno != EINTR) Fail(path, errno);
            if (!mayWait()) throw FileError(path + ": another program is changing it");
            std::this_thread::sleep_for(kStep);
        }
        // Who held the lock may have put another file in its place.
        if (file->IsAt(path)) return std::move(*file);
    }
}

}  // namespace tidewalk
