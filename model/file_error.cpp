// SPDX-License-Identifier: MIT
#include "model/file_error.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace tidewalk {

void Fail(const std::string& path, int reason) {
    throw FileError(path + ": " + std::strerror(reason != 0 ? reason : EIO));
}

void DemandReadable(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status)) return;
    Fail(path, std::filesystem::is_directory(status) ? EISDIR : EINVAL);
}

void DemandWritable(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_character_file(path, ignored)) DemandReadable(path);
}

}  // namespace tidewalk
