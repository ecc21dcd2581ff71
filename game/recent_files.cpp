// SPDX-License-Identifier: MIT
#include "game/recent_files.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <string_view>

#include "game/file_work.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

constexpr const char* kName = "RecentFiles";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// True for a byte that stands for itself. A path may have any bytes, a text of "tide.ini" may not, and blanks are
/// between paths.
bool IsPlain(char byte) {
    return byte > ' ' && byte <= '~' && byte != '%';
}

std::string Escaped(std::string_view path) {
    std::string text;
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        if (IsPlain(byte)) {
            text += byte;
        } else {
            text += {'%', kHexDigits[value / 16], kHexDigits[value % 16]};
        }
    }
    return text;
}

/// The path of an escaped text; "" for a text that is none, as somebody may have written into the file.
std::string Unescaped(std::string_view text) {
    std::string path;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char byte = text[at];
        if (byte == '%') {
            unsigned char value = 0;
            const std::string_view digits = text.substr(at + 1, 2);
            const char* const end = digits.data() + digits.size();
            if (digits.size() < 2 || std::from_chars(digits.data(), end, value, 16).ptr != end || value == 0) return "";
            byte = static_cast<char>(value);
            at += 2;
        }
        path += byte;
    }
    return path.starts_with('/') ? path : "";
}

std::vector<std::string> Read(const Choices& choices) {
    std::vector<std::string> paths;
    const std::string text = choices.Get(kName, "");
    for (std::size_t at = 0; at < text.size() && paths.size() < kMostRecentFiles;) {
        const std::size_t blank = std::min(text.find(' ', at), text.size());
        const std::string path = Unescaped(std::string_view(text).substr(at, blank - at));
        if (!path.empty()) paths.push_back(path);
        at = blank + 1;
    }
    return paths;
}

void Keep(Choices& choices, const std::vector<std::string>& paths) {
    std::string text;
    for (const std::string& path : paths)
        text += (text.empty() ? "" : " ") + Escaped(path);
    choices.Set(kName, text);
}

/// The same file is always called the same. A link stays one: it is the name that the player knows.
std::string Absolute(const std::string& path) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

/// The last `parts` names of a path; all of it when it has no more.
std::string LastNames(const std::string& path, int parts) {
    std::size_t from = path.size();
    while (parts-- > 0 && from > 0) {
        const std::size_t slash = path.rfind('/', from - 1);
        if (slash == std::string::npos || slash == 0) return path;
        from = slash;
    }
    return path.substr(from + 1);
}

}  // namespace

std::vector<std::string> RecentFiles(Game& game) {
    game.choices.Refresh();
    return Read(game.choices);
}

void RememberOpened(Game& game, const std::string& path) {
    const std::string opened = Absolute(path);
    if (opened == Absolute(WorkFile(game, "temp.txt"))) return;
    std::vector<std::string> paths = RecentFiles(game);
    if (!paths.empty() && paths.front() == opened) return;
    std::erase(paths, opened);
    paths.insert(paths.begin(), opened);
    if (paths.size() > kMostRecentFiles) paths.resize(kMostRecentFiles);
    Keep(game.choices, paths);
}

void ForgetOpened(Game& game, const std::string& path) {
    std::vector<std::string> paths = RecentFiles(game);
    if (std::erase(paths, path) > 0) Keep(game.choices, paths);
}

void mnuclearrecent_Click(Game& game) {
    Keep(game.choices, {});
}

bool HasRecentFiles(const Game& game) {
    return !game.choices.Get(kName, "").empty();
}

std::vector<std::string> ShortNames(const std::vector<std::string>& paths) {
    std::vector<std::string> names;
    for (const std::string& path : paths) {
        int parts = 1;
        const auto isShared = [&](const std::string& other) {
            return other != path && LastNames(other, parts) == LastNames(path, parts);
        };
        while (std::any_of(paths.begin(), paths.end(), isShared))
            ++parts;
        names.push_back(LastNames(path, parts));
    }
    return names;
}

}  // namespace tidewalk
