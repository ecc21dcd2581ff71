// SPDX-License-Identifier: MIT
// What the standard library lacks of files: locks, modes, and the way to the disk. The one place that asks the system.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace tidewalk {

/// Asked now and then while another program holds a file that is to be changed: true waits on, false gives up.
using MayWait = std::function<bool()>;

/// For whoever waits as long as it takes.
inline bool WaitOn() {
    return true;
}

/// Which file it is, and what changes when somebody changes it.
struct FileState {
    bool regular = false;
    std::uint64_t device = 0;
    std::uint64_t number = 0;  ///< which of the device's files
    std::uint64_t size = 0;
    std::int64_t written = 0;  ///< when its bytes changed last, in nanoseconds since 1970; anybody may set it
    std::int64_t changed = 0;  ///< when it changed in any way, the same; the system alone sets it

    bool operator==(const FileState&) const = default;
};

/// An open file of the system, closed with the object.
class SystemFile {
 public:
    enum class Mode { Read, Change, MakeOrChange, MakeNew };

    /// Opens the file. A file that is made has the rights that the user's mask leaves, with `MakeNew` none but the
    /// user's own. Nothing when the system refuses; its reason is in `errno`.
    static std::optional<SystemFile> Open(const std::string& path, Mode mode);

    /// Makes an empty file in the folder that has no name there: it is gone when it is closed, however the program
    /// ends. Nothing when the system refuses; its reason is in `errno`.
    static std::optional<SystemFile> MakeNameless(const std::string& folder);

    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;
    ~SystemFile();

    // The functions that return a bool leave the system's reason in `errno` when they fail.

    bool IsRegular() const;
    std::uint64_t Size() const;
    /// Nothing when the system does not tell.
    std::optional<FileState> State() const;
    /// True when `path` stands for this very file now.
    bool IsAt(const std::string& path) const;

    /// Takes the advisory lock that lets one program at a time change the file, if nobody holds it. A file system that
    /// knows no locks grants it.
    bool TryLock();
    /// The same for the `number`-th place of the file alone, counted from 0.
    bool TryLockPlace(int number);

    /// Fills the span with what the file holds from a place on, and tells how much that was: less than the span at the
    /// end alone. Nothing when the system refuses; its reason is in `errno`.
    std::optional<std::size_t> ReadInto(std::uint64_t from, std::span<char> bytes) const;
    /// Reads up to so many bytes from a place on; fewer at the end.
    std::string Read(std::uint64_t from, std::size_t most) const;
    bool Append(std::string_view bytes);
    bool CutTo(std::uint64_t size);
    /// Brings what was written to the disk.
    bool Sync();
    /// Gives the file the rights of another one.
    bool TakeModeOf(const SystemFile& other);
    /// Gives the file the rights that the user's mask leaves a new one.
    bool TakeUsualMode();

    int Descriptor() const { return descriptor_; }

 private:
    explicit SystemFile(int descriptor) : descriptor_(descriptor) {}
    int descriptor_ = -1;
};

/// Brings the names in the folder of `path` to the disk, after a file there was made, renamed or removed.
void SyncFolderOf(const std::string& path);

/// A stream buffer that reads a file from a place on, wherever the file itself stands.
class FileInput final : public std::streambuf {
 public:
    static constexpr std::size_t kUsualBytes = 128 * 1024;

    /// The file has to live as long. Messages call it `name`; `most` bytes are read at a time.
    FileInput(const SystemFile& file, std::string name, std::uint64_t from = 0, std::size_t most = kUsualBytes);

 protected:
    /// Throws FileError when the system cannot read.
    int_type underflow() override;

 private:
    const SystemFile& file_;
    std::string name_;
    std::uint64_t position_;
    std::vector<char> buffer_;
};

/// A stream buffer that writes to a file and forgets no failure.
class FileOutput final : public std::streambuf {
 public:
    /// The file has to live as long.
    explicit FileOutput(SystemFile& file);

    /// The system's reason for the first failure; 0 for none.
    int Failure() const { return failure_; }

 protected:
    int_type overflow(int_type character) override;
    int sync() override;

 private:
    bool Flush();

    SystemFile& file_;
    int failure_ = 0;
    std::array<char, 64 * 1024> buffer_{};
};

/// Opens the file at `path`, behind links if need be, and waits for its lock. When the name has come to stand for
/// another file meanwhile, the lock is taken on that one. A device, which nobody owns, is not locked.
///
/// Throws FileError when the system refuses, or when `mayWait` gives up.
SystemFile OpenLocked(const std::string& path, SystemFile::Mode mode, const MayWait& mayWait);

}  // namespace tidewalk
