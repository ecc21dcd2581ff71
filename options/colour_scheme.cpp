// SPDX-License-Identifier: MIT
#include "options/colour_scheme.h"

#include <algorithm>
#include <optional>

#include "model/contrast.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr std::string_view kDefaultName = "default.col";

/// The colour of a line "red;green;blue"; nothing when a channel is missing.
std::optional<Colour> ReadColour(std::string_view line) {
    const std::size_t first = line.find(';');
    if (first == std::string_view::npos) return std::nullopt;
    const std::size_t second = line.find(';', first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const auto channel = [](std::string_view text) { return std::clamp(RoundedVal(text), 0, 255); };
    const std::string_view blue = line.substr(second + 1);
    return Rgb(channel(line.substr(0, first)), channel(line.substr(first + 1, second - first - 1)),
               channel(blue.substr(0, blue.find(';'))));
}

/// Passes over everything up to the line that is `name`; false when there is none. The file stays open.
bool FindScheme(NumberedFiles& files, const std::string& path, const std::string& name) {
    try {
        files.Open(1, path, FileMode::Input);
        std::string line;
        while (files.ReadLine(1, line)) {
            if (line == name) return true;
        }
    } catch (const FileError&) {
        // A file that cannot be read holds no scheme.
    }
    return false;
}

/// Reads the lines behind the name. A scheme that is cut short ends at the first line that is no colour, for that may
/// be the name of the next one.
void ReadEntries(NumberedFiles& files, Colour& backColour, Options& options) {
    try {
        std::string line;
        for (std::size_t i = 0; i < kReadEntries && files.ReadLine(1, line); ++i) {
            const auto colour = ReadColour(line);
            if (!colour) return;
            options.SchemeColours[i] = *colour;
            if (i == kBackgroundEntry) backColour = *colour;
        }
    } catch (const FileError&) {
        // What was read so far is used.
    }
}

/// What "default.col" does before the windows are painted: the desktop's colours, and the board's own.
void TakeDesktopColours(Game& game) {
    game.SchemeColours[kBackgroundEntry] = game.window.Desktop(DesktopColour::WindowFace);
    game.SchemeColours[kOutlineEntry] = game.window.Desktop(DesktopColour::ListBackground);
    game.SchemeColours[kFaceEntry] = kWhite;
    game.ChainColour = BoardDefaultsOn(game.SchemeColours[kBackgroundEntry]).chain;
}

}  // namespace

bool IsDefaultScheme(std::string_view name) {
    return LowerCase(name) == kDefaultName;
}

void ReadColourScheme(Game& game, const std::string& Name, Colour& BackColour, Options& options) {
    auto& colours = options.SchemeColours;
    if (IsDefaultScheme(Name)) {
        BackColour = game.window.Desktop(DesktopColour::ListBackground);
        colours[kBackgroundEntry] = colours[static_cast<std::size_t>(options.AdjustIndex)] = BackColour;
        colours[kOutlineEntry] = game.window.Desktop(DesktopColour::WindowFace);
        return;
    }
    // The program's numbered files may be in use by a job while the options window is open.
    NumberedFiles files;
    if (FindScheme(files, game.ColourListPath, Name)) return ReadEntries(files, BackColour, options);
    game.prompts.Show("Color Scheme: " + Name + " not found", "vbcritical+vbok");
    game.events.DoEvents();
    BackColour = 0;
    options.ColourSchemeName = kDefaultName;
}

void LoadColourScheme(Game& game, const std::string& Name, Colour& BackColour) {
    ReadColourScheme(game, Name, BackColour, game);
}

void ApplyColourScheme(Game& game) {
    const bool isDefault = IsDefaultScheme(game.ColourSchemeName);
    auto& colours = game.SchemeColours;
    game.AdjustIndex = static_cast<int>(kFaceEntry);
    if (isDefault) TakeDesktopColours(game);
    if (colours[kAdjustedEntry] == 0) colours[kAdjustedEntry] = colours[kFaceEntry];
    if (colours[kAdjustedEntry] > 0) colours[kFaceEntry] = colours[kAdjustedEntry];
    if (isDefault) {
        const BoardDefaults defaults = BoardDefaultsOn(colours[kBackgroundEntry]);
        game.NodeColour = game.GridColour = defaults.node;
        game.ChainColour = defaults.chain;
        // Numbers that were chosen for dark islands are lost on light ones.
        if (defaults.node != kDefaultNodeColour) game.GivenColour = LegibleOn(defaults.node, game.GivenColour);
    }
    game.Picture1BackColor = colours[kBackgroundEntry];
    game.window.ApplyColours();
}

BoardDefaults BoardDefaultsOn(Colour background) {
    constexpr Colour kLightNode = Rgb(235, 235, 235);
    constexpr Colour kLightChain = Rgb(255, 140, 120);
    // On a dark desktop the islands would be black on black.
    const auto seen = [&](Colour colour) { return Contrast(colour, background) >= kShapeContrast; };
    return {seen(kDefaultNodeColour) ? kDefaultNodeColour : kLightNode,
            seen(kDefaultChainColour) ? kDefaultChainColour : kLightChain};
}

void AdjustBrightness(Options& options, int index) {
    constexpr int kStep = 10;
    constexpr int kDarkest = 10;
    const int change = index == 2 ? kStep : index == 1 ? -kStep : 0;
    Colour& entry = options.SchemeColours[static_cast<std::size_t>(options.AdjustIndex)];
    const auto changed = [&](int channel) { return std::clamp(channel + change, kDarkest, 255); };
    entry = Rgb(changed(RedOf(entry)), changed(GreenOf(entry)), changed(BlueOf(entry)));
    options.SchemeColours[kAdjustedEntry] = entry;
}

}  // namespace tidewalk
