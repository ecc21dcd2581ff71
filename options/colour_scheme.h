// SPDX-License-Identifier: MIT
// Colour schemes: reading one from "all.col" and giving it to the windows and the board.
#pragma once

#include <string>
#include <string_view>

#include "game/game.h"

namespace tidewalk {

/// What the line with a scheme's name ends in.
inline constexpr std::string_view kSchemeEnding = ".col";

/// True for a line "red;green;blue", an entry of a scheme.
bool IsColourLine(std::string_view line);

/// True for "default.col" in any letter case, the scheme that follows the desktop and is in no file.
bool IsDefaultScheme(std::string_view name);

/// Fills `SchemeColours` with the scheme called `Name`, such as "xp.col", and returns its background in `BackColour`.
///
/// Colours that the file does not give stay. A name that is not there is reported; `BackColour` is 0 then and
/// `ColourSchemeName` "default.col". The window shows nothing of the scheme before `ApplyColourScheme`.
void LoadColourScheme(Game& game, const std::string& Name, Colour& BackColour);

/// The same into `options`, so that a scheme can be looked at before it is the program's.
void ReadColourScheme(Game& game, const std::string& Name, Colour& BackColour, Options& options);

/// Gives the loaded scheme to the main window, the board's picture and the message box. The board is not redrawn.
void ApplyColourScheme(Game& game);

/// What applying does to the options themselves: "default.col" takes the desktop's colours, the player's own version of
/// the face takes the place of the scheme's.
void WearColourScheme(Options& options, const MainWindow& desktop);

/// The colours of islands and bridges that go with "default.col" on a board of this background.
struct BoardDefaults {
    Colour node;
    Colour chain;
};
BoardDefaults BoardDefaultsOn(Colour background);

/// The brightness buttons: index 2 makes the entry `AdjustIndex` lighter, 1 darker, within 10..255 a channel. Entry 13
/// keeps the result.
void AdjustBrightness(Options& options, int index);

}  // namespace tidewalk
