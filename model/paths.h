// SPDX-License-Identifier: MIT
// File names and the folders they lie in.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tidewalk {

/// What follows the last separator of `path`; the whole path when it has none.
std::string FileNameOf(std::string_view path);

/// `folder` with a separator at its end.
std::string WithSeparator(std::string folder);

/// The size of the file in bytes, or 0 when there is no such file or it cannot be told.
std::uint64_t FileLength(const std::string& path);

/// Appends "." and the extension to a path whose file name holds no ".".
void AddExtension(std::string& path, std::string_view extension);

/// True when both names lead to one file, which is there.
bool NameOneFile(const std::string& one, const std::string& other);

}  // namespace tidewalk
