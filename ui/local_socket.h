// SPDX-License-Identifier: MIT
// Messages between programs of one user on one machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidewalk {

/// A socket of the system, closed with the object. Nothing here waits.
///
/// It has a name, but no file: a name is taken by one program at a time and is free again when that has ended, however
/// it did. Any user may use any name, which is why both sides look whom they have before them.
class LocalSocket {
 public:
    /// A message may have so many bytes.
    static constexpr std::size_t kLongestMessage = 8192;
    /// And a name.
    static constexpr std::size_t kLongestName = 100;

    /// Takes the name and hears who calls it. Nothing when it is taken, or the system refuses.
    static std::optional<LocalSocket> Listen(const std::string& name);
    /// Calls a name. Nothing when there is nobody who listens, or not for this user.
    static std::optional<LocalSocket> Call(const std::string& name);

    LocalSocket(LocalSocket&& other) noexcept;
    LocalSocket& operator=(LocalSocket&& other) noexcept;
    LocalSocket(const LocalSocket&) = delete;
    LocalSocket& operator=(const LocalSocket&) = delete;
    ~LocalSocket();

    /// The next one who calls; nothing when nobody waits. Other users are hung up on.
    std::optional<LocalSocket> Answer() const;

    /// False when the other side is gone, or has stopped listening.
    bool Send(std::string_view message) const;
    /// Sees to it that the other side can send nothing more. What it has sent is still to be read.
    void StopListening() const;

    struct Heard {
        enum class What { Message, Nothing, End };
        What what = What::Nothing;  ///< a message that is too long is the end, too
        std::string message;
    };
    Heard Hear() const;

    int Descriptor() const { return descriptor_; }

 private:
    explicit LocalSocket(int descriptor) : descriptor_(descriptor) {}
    bool IsSameUser() const;

    int descriptor_ = -1;
};

}  // namespace tidewalk
