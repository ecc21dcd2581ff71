// SPDX-License-Identifier: MIT
// The player's options and the colours of the active scheme.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/surface.h"

namespace tidewalk {

// The colours before any scheme is read.
inline constexpr Colour kDefaultNodeColour = Rgb(20, 20, 20);
inline constexpr Colour kDefaultGivenColour = kWhite;
inline constexpr Colour kDefaultChainColour = Rgb(200, 9, 9);
inline constexpr Colour kDefaultGridColour = Rgb(200, 200, 10);

struct Options {
    static constexpr int kSchemeEntries = 14;

    std::string ColourSchemeName = "xp.col";
    std::vector<std::string> schemeNames;  ///< what "all.col" offers, without the ending
    /// The active scheme: 2 is the background of the board and the text boxes, 3 the outline of the cells, 4 the face
    /// of buttons and frames, 13 the player's own version of the entry `AdjustIndex`, 0 for none.
    std::array<Colour, kSchemeEntries> SchemeColours{};
    int AdjustIndex = 4;  ///< the entry that the brightness buttons change

    Colour NodeColour = kDefaultNodeColour;    ///< the islands
    Colour GivenColour = kDefaultGivenColour;  ///< their numbers
    Colour ChainColour = kDefaultChainColour;  ///< the player's bridges
    Colour GridColour = kDefaultGridColour;    ///< the thin lines between islands, and the solution view
    int NodeShape = 0;                         ///< 1 circle, anything else square
    int ShowLines = 1;                         ///< 1 shows the thin lines between islands
    int ShowFinished = 0;                      ///< 1 draws islands with all their bridges paler; not kept in any file
    int reservedNumber = 12;                   ///< kept in the configuration file, used by nothing
    int PrintLineWidth = 4;                    ///< the pen of printed bridges, in pixels at 300 dpi
};

}  // namespace tidewalk
