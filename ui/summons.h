// SPDX-License-Identifier: MIT
// What a start of the program and a window that is open say to each other.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tidewalk {

/// What a start hands to a window.
struct Summons {
    std::string collection;  ///< the file to open, absolute and byte for byte; "" for none
    int puzzleNumber = 1;
    std::string token;  ///< by which the desktop lets the window come to the front; "" for none

    bool operator==(const Summons&) const = default;
};

/// A window's answers: it will take the file when what it is busy with has ended; it has taken it.
inline constexpr std::string_view kWaits = "waits";
inline constexpr std::string_view kTaken = "taken";

/// A message of its own for each. They begin with the version of this language: a window of another version, which may
/// speak another one, is not understood and left alone.
std::string SummonsText(const Summons& summons);
std::string GreetingText(std::int64_t lastActive);

/// Nothing for a text that is none.
std::optional<Summons> ParseSummons(std::string_view text);
/// When the window was active last, in milliseconds of the machine's clock.
std::optional<std::int64_t> ParseGreeting(std::string_view text);

}  // namespace tidewalk
