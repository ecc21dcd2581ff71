// SPDX-License-Identifier: MIT
// The player's options and the colours of the active scheme.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"

namespace tidewalk {

// The colours before any scheme is read.
inline constexpr Colour kDefaultNodeColour = Rgb(20, 20, 20);
inline constexpr Colour kDefaultGivenColour = kWhite;
inline constexpr Colour kDefaultChainColour = Rgb(200, 9, 9);
inline constexpr Colour kDefaultGridColour = Rgb(200, 200, 10);

// The board's colours at a first start, and again after "Reset". The islands are the same as above.
inline constexpr Colour kFirstGivenColour = kWhite;
inline constexpr Colour kFirstChainColour = Rgb(128, 0, 0);
inline constexpr Colour kFirstGridColour = Rgb(192, 192, 192);

// What the entries of a scheme are for; 11 and 12 are spare.
inline constexpr std::size_t kFaceTextEntry = 0;        ///< text on buttons, frames and labels
inline constexpr std::size_t kBoxTextEntry = 1;         ///< text in text boxes and lists
inline constexpr std::size_t kBackgroundEntry = 2;      ///< background of the board and of text boxes
inline constexpr std::size_t kOutlineEntry = 3;         ///< outlines of the cells, lines around frames
inline constexpr std::size_t kFaceEntry = 4;            ///< buttons, frames and labels
inline constexpr std::size_t kGridEntry = 5;            ///< suggested `GridColour`
inline constexpr std::size_t kChainEntry = 6;           ///< suggested `ChainColour`
inline constexpr std::size_t kGivenEntry = 7;           ///< suggested `GivenColour`
inline constexpr std::size_t kNodeEntry = 8;            ///< suggested `NodeColour`
inline constexpr std::size_t kHighlightEntry = 9;       ///< what is selected or has the focus
inline constexpr std::size_t kHighlightTextEntry = 10;  ///< text on it
inline constexpr std::size_t kReadEntries = 13;         ///< entries 0..12 come from the file
inline constexpr std::size_t kAdjustedEntry = 13;       ///< the player's own version of the entry `AdjustIndex`
inline constexpr std::size_t kSchemeEntries = 14;

struct Options {
    std::string ColourSchemeName = "xp.col";
    std::vector<std::string> schemeNames;  ///< what "all.col" offers, without the ending
    /// The active scheme. The player's own version of an entry is 0 for none.
    std::array<Colour, kSchemeEntries> SchemeColours{};
    int AdjustIndex = static_cast<int>(kFaceEntry);  ///< the entry that the brightness buttons change

    /// What the board lies on.
    Colour BoardBackground() const { return SchemeColours[kBackgroundEntry]; }

    Colour NodeColour = kDefaultNodeColour;    ///< the islands
    Colour GivenColour = kDefaultGivenColour;  ///< their numbers
    Colour ChainColour = kDefaultChainColour;  ///< the player's bridges
    Colour GridColour = kDefaultGridColour;    ///< the thin lines between islands, and the solution view
    int NodeShape = 0;                         ///< 1 circle, anything else square
    int ShowLines = 1;                         ///< 1 shows the thin lines between islands
    bool StoredLinesOnly = false;              ///< thin lines only where the stored solution has bridges
    bool ShowFinished = false;                 ///< draws islands with all their bridges paler
    bool ShowOverfull = false;                 ///< marks islands with too many bridges
    bool ShowCrossings = false;                ///< marks bridges that cross
    bool ShowClosedGroups = false;             ///< marks finished groups while other islands remain
    bool StrictCheck = false;                  ///< Check looks at crossings and groups, too
    bool KeepPlay = true;                      ///< what is played returns with the puzzle
    bool ShowTime = false;                     ///< the time spent stands in the status line
    int reservedNumber = 12;                   ///< kept in the configuration file, used by nothing
    int PrintLineWidth = 4;                    ///< the pen of printed bridges, in pixels at 300 dpi
};

/// An option that is a yes or no and is kept by name among the choices.
struct KeptOption {
    std::string_view name;
    bool Options::*value;
};

inline constexpr std::array<KeptOption, 8> kKeptOptions{{
    {"PalerFinished", &Options::ShowFinished},
    {"StoredLinesOnly", &Options::StoredLinesOnly},
    {"ShowOverfull", &Options::ShowOverfull},
    {"ShowCrossings", &Options::ShowCrossings},
    {"ShowClosedGroups", &Options::ShowClosedGroups},
    {"StrictCheck", &Options::StrictCheck},
    {"KeepPlay", &Options::KeepPlay},
    {"ShowTime", &Options::ShowTime},
}};

}  // namespace tidewalk
