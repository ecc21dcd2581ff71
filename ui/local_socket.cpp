// SPDX-License-Identifier: MIT
#include "ui/local_socket.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace tidewalk {

namespace {

constexpr int kBacklog = 32;

struct Address {
    sockaddr_un bytes{};
    socklen_t size = 0;

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&bytes); }
};

/// The zero byte before the name makes it one that is in no folder.
Address AddressOf(const std::string& name) {
    Address address;
    address.bytes.sun_family = AF_UNIX;
    const std::size_t length = std::min(name.size(), LocalSocket::kLongestName);
    std::copy_n(name.data(), length, address.bytes.sun_path + 1);
    address.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    return address;
}

/// A socket that keeps messages apart and tells when the other side is gone. -1 when there is none.
int NewSocket() {
    return ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

}  // namespace

std::optional<LocalSocket> LocalSocket::Listen(const std::string& name) {
    LocalSocket socket(NewSocket());
    const Address address = AddressOf(name);
    if (socket.descriptor_ < 0 || ::bind(socket.descriptor_, address.Get(), address.size) != 0 ||
        ::listen(socket.descriptor_, kBacklog) != 0) {
        return std::nullopt;
    }
    return socket;
}

std::optional<LocalSocket> LocalSocket::Call(const std::string& name) {
    LocalSocket socket(NewSocket());
    const Address address = AddressOf(name);
    if (socket.descriptor_ < 0 || ::connect(socket.descriptor_, address.Get(), address.size) != 0 ||
        !socket.IsSameUser()) {
        return std::nullopt;
    }
    return socket;
}

LocalSocket::LocalSocket(LocalSocket&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

LocalSocket& LocalSocket::operator=(LocalSocket&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

LocalSocket::~LocalSocket() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

std::optional<LocalSocket> LocalSocket::Answer() const {
    while (true) {
        LocalSocket caller(::accept4(descriptor_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (caller.descriptor_ < 0) return std::nullopt;
        if (caller.IsSameUser()) return caller;
    }
}

bool LocalSocket::IsSameUser() const {
    ucred other{};
    socklen_t size = sizeof other;
    return ::getsockopt(descriptor_, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 && other.uid == ::getuid();
}

bool LocalSocket::Send(std::string_view message) const {
    const ssize_t sent = ::send(descriptor_, message.data(), message.size(), MSG_NOSIGNAL);
    return sent == static_cast<ssize_t>(message.size());
}

void LocalSocket::StopListening() const {
    ::shutdown(descriptor_, SHUT_RD);
}

LocalSocket::Heard LocalSocket::Hear() const {
    std::string message(kLongestMessage + 1, '\0');
    const ssize_t length = ::recv(descriptor_, message.data(), message.size(), 0);
    if (length < 0 && (errno == EAGAIN || errno == EINTR)) return {};
    if (length <= 0 || static_cast<std::size_t>(length) > kLongestMessage) return {Heard::What::End, ""};
    message.resize(static_cast<std::size_t>(length));
    return {Heard::What::Message, message};
}

}  // namespace tidewalk
