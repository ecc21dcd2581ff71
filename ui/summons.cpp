// SPDX-License-Identifier: MIT
#include "ui/summons.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace tidewalk {

namespace {

constexpr std::string_view kSummons = "tidewalk 1 open";
constexpr std::string_view kGreeting = "tidewalk 1 window";
constexpr std::size_t kLongestToken = 512;

/// The fields of a message. Each ends with the one byte that is in no path.
std::vector<std::string_view> FieldsOf(std::string_view text) {
    std::vector<std::string_view> fields;
    while (!text.empty()) {
        const std::size_t end = text.find('\0');
        if (end == std::string_view::npos) return {};
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return fields;
}

template <class Number>
std::optional<Number> NumberIn(std::string_view text, Number least) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end || number < least) return std::nullopt;
    return number;
}

bool MayBeToken(std::string_view text) {
    return text.size() <= kLongestToken &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c <= '~'; });
}

std::string Joined(std::string_view kind, const std::vector<std::string>& fields) {
    std::string text = std::string(kind) + '\0';
    for (const std::string& field : fields)
        text += field + '\0';
    return text;
}

}  // namespace

std::string SummonsText(const Summons& summons) {
    return Joined(kSummons, {summons.collection, std::to_string(summons.puzzleNumber),
                             MayBeToken(summons.token) ? summons.token : ""});
}

std::string GreetingText(std::int64_t lastActive) {
    return Joined(kGreeting, {std::to_string(lastActive)});
}

std::optional<Summons> ParseSummons(std::string_view text) {
    const std::vector<std::string_view> fields = FieldsOf(text);
    if (fields.size() != 4 || fields[0] != kSummons) return std::nullopt;
    const std::optional<int> number = NumberIn<int>(fields[2], 1);
    const bool isPath = fields[1].empty() || fields[1].starts_with('/');
    if (!number || !isPath || !MayBeToken(fields[3])) return std::nullopt;
    return Summons{std::string(fields[1]), *number, std::string(fields[3])};
}

std::optional<std::int64_t> ParseGreeting(std::string_view text) {
    const std::vector<std::string_view> fields = FieldsOf(text);
    if (fields.size() != 2 || fields[0] != kGreeting) return std::nullopt;
    return NumberIn<std::int64_t>(fields[1], 0);
}

}  // namespace tidewalk
