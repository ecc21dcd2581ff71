// SPDX-License-Identifier: MIT
// Index checks that cost nothing in a release build.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace tidewalk {

#ifdef TIDEWALK_CHECKED
/// Ends the program when `holds` is false: an index out of range is a fault of ours, never of a file or a player.
inline void CheckIndex(bool holds) {
    if (holds) return;
    std::fputs("tidewalk: index out of range\n", stderr);
    std::abort();
}
#else
inline void CheckIndex(bool /*holds*/) {}
#endif

}  // namespace tidewalk
