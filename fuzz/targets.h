// SPDX-License-Identifier: MIT
// The readers of files, each fed with any bytes.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tidewalk::fuzz {

/// Lines of a collection: counted, read, judged, solved and written again.
void ReadCollection(std::string_view bytes);
/// Files of grids, read and written again.
void ReadGrid(std::string_view bytes);
/// Collections of the older layout.
void ReadOldLayout(std::string_view bytes);
/// "tide.cfg": read, written and read again.
void ReadConfiguration(std::string_view bytes);
/// "all.col": the whole start with it, and every scheme that it offers.
void ReadColourSchemes(std::string_view bytes);
/// The moves that were kept of a puzzle, as "play.db" holds them.
void ReadPlay(std::string_view bytes);

struct Target {
    const char* name;  ///< of its folder of inputs
    void (*feed)(std::string_view bytes);
};

inline constexpr Target kEngineTargets[] = {
    {"collection", ReadCollection}, {"grid", ReadGrid}, {"layout_conversion", ReadOldLayout}};
inline constexpr Target kGameTargets[] = {
    {"configuration", ReadConfiguration}, {"colour_schemes", ReadColourSchemes}, {"play", ReadPlay}};

/// Ends the process with this text when `holds` is false, which a fuzzer takes for a find and a test for a failure.
inline void Demand(bool holds, const char* text) {
    if (holds) return;
    std::fprintf(stderr, "%s\n", text);
    std::abort();
}

}  // namespace tidewalk::fuzz
