// SPDX-License-Identifier: MIT
#include "model/paths.h"

#include <filesystem>

namespace tidewalk {

namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

std::string FileNameOf(std::string_view path) {
    const std::size_t last = path.rfind(kSeparator);
    return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string WithSeparator(std::string folder) {
    if (folder.empty() || folder.back() != kSeparator) folder += kSeparator;
    return folder;
}

std::uint64_t FileLength(const std::string& path) {
    std::error_code error;
    const std::uintmax_t length = std::filesystem::file_size(path, error);
    return error ? 0 : length;
}

void AddExtension(std::string& path, std::string_view extension) {
    if (FileNameOf(path).find('.') != std::string::npos) return;
    path += '.';
    path += extension;
}

bool NameOneFile(const std::string& one, const std::string& other) {
    std::error_code ignored;
    return std::filesystem::equivalent(one, other, ignored);
}

}  // namespace tidewalk
