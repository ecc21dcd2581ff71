// SPDX-License-Identifier: MIT
// Stopping long work.
#pragma once

#include <functional>

namespace tidewalk {

/// Asked again and again by long work, at every step that may be its last: true lets it go on, false stops it soon.
/// Whoever is asked may also show how far the work is.
using MayGoOn = std::function<bool()>;

/// For work that nobody stops.
inline bool WithoutEnd() {
    return true;
}

}  // namespace tidewalk
