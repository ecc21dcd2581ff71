// SPDX-License-Identifier: MIT
// The readers of files, each fed with any bytes.
#pragma once

#include <string_view>

namespace tidewalk::fuzz {

/// Lines of a collection: counted, read beside the game, loaded, drawn, judged and written again.
void ReadCollection(std::string_view bytes);
/// Files of grids, read by the importer and by the number editor.
void ReadGrid(std::string_view bytes);
/// "tide.cfg": read, written and read again.
void ReadConfiguration(std::string_view bytes);
/// "all.col": the whole start with it, and every scheme that it offers.
void ReadColourSchemes(std::string_view bytes);
/// Collections of the older layout.
void ReadOldLayout(std::string_view bytes);

struct Target {
    const char* name;  ///< of its folder of inputs
    void (*feed)(std::string_view bytes);
};

inline constexpr Target kTargets[] = {{"collection", ReadCollection},
                                      {"grid", ReadGrid},
                                      {"configuration", ReadConfiguration},
                                      {"colour_schemes", ReadColourSchemes},
                                      {"layout_conversion", ReadOldLayout}};

}  // namespace tidewalk::fuzz
