// SPDX-License-Identifier: MIT
#include "options/colour_scheme.h"

#include <algorithm>
#include <optional>

#include "drawing/contrast.h"
#include "model/file_error.h"
#include "model/line_reader.h"
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

/// Reads the lines behind the scheme's name. A scheme that is cut short ends at the first line that is no colour, for
/// that may be the name of the next one.
void ReadEntries(LineReader& lines, Colour& backColour, Options& options) {
    std::string line;
    for (std::size_t i = 0; i < kReadEntries && lines.Next(line); ++i) {
        const auto colour = ReadColour(line);
        if (!colour) return;
        options.SchemeColours[i] = *colour;
        if (i == kBackgroundEntry) backColour = *colour;
    }
}

/// Reads the scheme called `name`, as far as it can be read; false when there is none.
bool ReadScheme(const std::string& path, const std::string& name, Colour& backColour, Options& options) {
    bool found = false;
    try {
        LineReader lines(path);
        std::string line;
        while (!found && lines.Next(line))
            found = line == name;
        if (found) ReadEntries(lines, backColour, options);
    } catch (const FileError&) {
        // What was read so far is used; a file that cannot be read holds no scheme.
    }
    return found;
}

/// What "default.col" does before the windows are painted: the desktop's colours, and the board's own.
void TakeDesktopColours(Options& options, const MainWindow& desktop) {
    options.SchemeColours[kBackgroundEntry] = desktop.Desktop(DesktopColour::WindowFace);
    options.SchemeColours[kOutlineEntry] = desktop.Desktop(DesktopColour::ListBackground);
    options.SchemeColours[kFaceEntry] = kWhite;
    options.ChainColour = BoardDefaultsOn(options.SchemeColours[kBackgroundEntry]).chain;
}

}  // namespace

bool IsColourLine(std::string_view line) {
    return ReadColour(line).has_value();
}

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
    if (ReadScheme(game.ColourListPath, Name, BackColour, options)) return;
    game.prompts.Show("Color Scheme: " + Name + " not found", "vbcritical+vbok");
    game.events.DoEvents();
    BackColour = 0;
    options.ColourSchemeName = kDefaultName;
}

void LoadColourScheme(Game& game, const std::string& Name, Colour& BackColour) {
    ReadColourScheme(game, Name, BackColour, game.options);
}

void WearColourScheme(Options& options, const MainWindow& desktop) {
    const bool isDefault = IsDefaultScheme(options.ColourSchemeName);
    auto& colours = options.SchemeColours;
    options.AdjustIndex = static_cast<int>(kFaceEntry);
    if (isDefault) TakeDesktopColours(options, desktop);
    if (colours[kAdjustedEntry] == 0) colours[kAdjustedEntry] = colours[kFaceEntry];
    if (colours[kAdjustedEntry] > 0) colours[kFaceEntry] = colours[kAdjustedEntry];
    if (isDefault) {
        const BoardDefaults defaults = BoardDefaultsOn(colours[kBackgroundEntry]);
        options.NodeColour = options.GridColour = defaults.node;
        options.ChainColour = defaults.chain;
        // Numbers that were chosen for dark islands are lost on light ones.
        if (defaults.node != kDefaultNodeColour) options.GivenColour = LegibleOn(defaults.node, options.GivenColour);
    }
}

void ApplyColourScheme(Game& game) {
    WearColourScheme(game.options, game.window);
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
