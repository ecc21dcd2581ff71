// SPDX-License-Identifier: MIT
#include "cli/descriptor_buffers.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <thread>

#include "model/file_error.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

constexpr std::size_t kInputBytes = 128 * 1024;

/// So long a wait goes on before the next look at whether to stop. The signal itself may reach any other thread.
constexpr int kWaitMilliseconds = 50;

namespace fs = std::filesystem;

/// Another number for a descriptor of this run, which goes on where that one stands. To open its name anew would begin
/// at a file's beginning, and find no beginning at all of what somebody else holds open. `refused` is the mode of
/// opening that is of no use.
int Duplicate(const std::string& path, int own, int refused) {
    const int flags = fcntl(own, F_GETFL);
    const int descriptor = flags < 0 ? -1 : fcntl(own, F_DUPFD_CLOEXEC, 0);
    if (descriptor < 0 || (flags & O_ACCMODE) == refused) {
        if (descriptor >= 0) close(descriptor);
        Fail(path, EBADF);
    }
    return descriptor;
}

int OpenForReading(const std::string& path) {
    if (const auto own = OwnDescriptor(path)) return Duplicate(path, *own, O_WRONLY);
    // Without O_NONBLOCK a pipe that nobody writes to yet would not even open.
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) Fail(path, errno);
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        close(descriptor);
        Fail(path, EISDIR);
    }
    return descriptor;
}

int OpenForWriting(const std::string& path, const std::atomic<int>& stopSignal) {
    if (const auto own = OwnDescriptor(path)) return Duplicate(path, *own, O_RDONLY);
    for (;;) {
        const int descriptor = open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        if (descriptor >= 0) return descriptor;
        const int reason = errno;
        std::error_code ignored;
        const bool lacksReader = reason == ENXIO && fs::is_fifo(path, ignored);
        if (!lacksReader || stopSignal != 0) Fail(path, reason);
        std::this_thread::sleep_for(std::chrono::milliseconds(kWaitMilliseconds));
    }
}

/// True when the descriptor is ready, or gone.
bool IsReady(int descriptor, short events) {
    pollfd waiting{descriptor, events, 0};
    return poll(&waiting, 1, kWaitMilliseconds) > 0;
}

bool IsPassing(int reason) {
    return reason == EINTR || reason == EAGAIN || reason == EWOULDBLOCK;
}

}  // namespace

std::optional<int> OwnDescriptor(const std::string& path) {
    constexpr int kMostLinks = 40;
    std::error_code error;
    const fs::path ours = fs::canonical("/proc/self/fd", error);
    if (error) return std::nullopt;
    fs::path at = fs::absolute(path, error);
    for (int links = 0; links < kMostLinks && !error; ++links) {
        if (fs::canonical(at.parent_path(), error) == ours) {
            const std::string name = at.filename().string();
            int number = 0;
            const auto [end, wrong] = std::from_chars(name.data(), name.data() + name.size(), number);
            if (wrong == std::errc() && end == name.data() + name.size()) return number;
        }
        // What is no link ends the search with an error.
        at = at.parent_path() / fs::read_symlink(at, error);
    }
    return std::nullopt;
}

bool IsStream(const std::string& path) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    return path == kStandard || fs::is_fifo(status) || fs::is_character_file(status) || fs::is_socket(status) ||
           OwnDescriptor(path).has_value();
}

bool AreOneFile(const std::string& input, const std::string& output) {
    std::error_code ignored;
    const fs::path from = input == kStandard ? "/dev/stdin" : input;
    const fs::path to = output == kStandard ? "/dev/stdout" : output;
    // A terminal is no file that could be lost.
    return fs::is_regular_file(to, ignored) && NameOneFile(from.string(), to.string());
}

InputDescriptor::InputDescriptor(int descriptor, const std::atomic<int>& stopSignal)
    : name_("standard input"), descriptor_(descriptor), owned_(false), stopSignal_(stopSignal), buffer_(kInputBytes) {}

InputDescriptor::InputDescriptor(const std::string& path, const std::atomic<int>& stopSignal)
    : name_(path), descriptor_(OpenForReading(path)), owned_(true), stopSignal_(stopSignal), buffer_(kInputBytes) {}

InputDescriptor::~InputDescriptor() {
    if (owned_) close(descriptor_);
}

long long InputDescriptor::Size() const {
    struct stat status {};
    return fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode) ? static_cast<long long>(status.st_size) : -1;
}

InputDescriptor::int_type InputDescriptor::underflow() {
    if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
    while (stopSignal_ == 0) {
        if (!IsReady(descriptor_, POLLIN)) continue;
        const ssize_t count = read(descriptor_, buffer_.data(), buffer_.size());
        if (count < 0 && IsPassing(errno)) continue;
        if (count < 0) Fail(name_, errno);
        if (count == 0) break;
        setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
        return traits_type::to_int_type(*gptr());
    }
    return traits_type::eof();
}

Input::Input(Console& console, const std::string& path) : console_(console) {
    if (path != kStandard) opened_ = std::make_unique<InputDescriptor>(path, console.stopSignal);
}

OutputDescriptor::OutputDescriptor(int descriptor, const std::atomic<int>& stopSignal)
    : descriptor_(descriptor), owned_(false), stopSignal_(stopSignal) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

OutputDescriptor::OutputDescriptor(const std::string& path, const std::atomic<int>& stopSignal)
    : descriptor_(OpenForWriting(path, stopSignal)), owned_(true), stopSignal_(stopSignal) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

OutputDescriptor::~OutputDescriptor() {
    if (owned_) close(descriptor_);
}

/// Waits until a piece can be written, which for a pipe is as much as the buffer holds. After a signal it waits once
/// more and then gives up.
bool OutputDescriptor::WaitForRoom() const {
    for (;;) {
        const bool stopped = stopSignal_ != 0;
        if (IsReady(descriptor_, POLLOUT)) return true;
        if (stopped) return false;
    }
}

bool OutputDescriptor::Flush() {
    const char* from = pbase();
    while (from < pptr() && failure_ == 0) {
        if (!WaitForRoom()) {
            failure_ = EINTR;
            break;
        }
        const ssize_t count = write(descriptor_, from, static_cast<std::size_t>(pptr() - from));
        if (count >= 0) {
            from += count;
        } else if (!IsPassing(errno)) {
            failure_ = errno;
        }
    }
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return failure_ == 0;
}

OutputDescriptor::int_type OutputDescriptor::overflow(int_type character) {
    if (!Flush()) return traits_type::eof();
    return traits_type::eq_int_type(character, traits_type::eof()) ? traits_type::not_eof(character)
                                                                   : sputc(traits_type::to_char_type(character));
}

int OutputDescriptor::sync() {
    return Flush() ? 0 : -1;
}

}  // namespace tidewalk
