// SPDX-License-Identifier: MIT
// Giving a file that is in the way another name.
#pragma once

#include <string>

namespace tidewalk {

/// Gives the file at `path` another name beside it, the first that is free of "name-1.tdw", "name-2.tdw" and so on.
/// False when that cannot be done; then nothing has changed.
bool PutAside(const std::string& path);

}  // namespace tidewalk
