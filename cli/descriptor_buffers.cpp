// SPDX-License-Identifier: MIT
#include "cli/descriptor_buffers.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "model/file_error.h"

namespace tidewalk {

namespace {

constexpr std::size_t kInputBytes = 128 * 1024;

/// So long a wait goes on before the next look at whether to stop. The signal itself may reach any other thread.
constexpr int kWaitMilliseconds = 50;

int OpenForReading(const std::string& path) {
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

/// True when the descriptor is ready, or gone.
bool IsReady(int descriptor, short events) {
    pollfd waiting{descriptor, events, 0};
    return poll(&waiting, 1, kWaitMilliseconds) > 0;
}

bool IsPassing(int reason) {
    return reason == EINTR || reason == EAGAIN || reason == EWOULDBLOCK;
}

}  // namespace

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

OutputDescriptor::OutputDescriptor(int descriptor, const std::atomic<int>& stopSignal)
    : descriptor_(descriptor), stopSignal_(stopSignal) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
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
