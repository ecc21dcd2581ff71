// SPDX-License-Identifier: MIT
#include "options/window_colours.h"

#include "drawing/contrast.h"
#include "model/numbers.h"
#include "options/colour_scheme.h"

namespace tidewalk {

namespace {

bool FollowsDesktop(const Options& options) {
    return LowerCase(options.ColourSchemeName).find("default") != std::string::npos;
}

Colour HighlightOf(const Options& options, const MainWindow& desktop) {
    const Colour background = options.SchemeColours[kBackgroundEntry];
    const Colour wanted =
        FollowsDesktop(options) ? desktop.Desktop(DesktopColour::Highlight) : options.SchemeColours[kHighlightEntry];
    return LegibleOn(background, wanted, kShapeContrast);
}

/// White, and what nobody has adjusted, stand for "no colour of its own" there: a white button on a dark desktop is
/// nobody's choice.
Colour FaceOf(const Options& options, const MainWindow& desktop) {
    const Colour face = options.SchemeColours[kFaceEntry];
    const bool chosen = face != kWhite && options.SchemeColours[kAdjustedEntry] != 0;
    return FollowsDesktop(options) && !chosen ? desktop.Desktop(DesktopColour::ButtonFace) : face;
}

}  // namespace

WindowColours ColoursOfWindows(const Options& options, const MainWindow& desktop) {
    const auto& scheme = options.SchemeColours;
    WindowColours colours{};
    colours.face = FaceOf(options, desktop);
    colours.frame = FollowsDesktop(options) ? scheme[kOutlineEntry] : colours.face;
    colours.box = scheme[kBackgroundEntry];
    colours.outline = scheme[kOutlineEntry];
    colours.highlight = HighlightOf(options, desktop);
    colours.frameText = LegibleOn(colours.frame, scheme[kFaceTextEntry]);
    colours.faceText = LegibleOn(colours.face, scheme[kFaceTextEntry]);
    colours.boxText = LegibleOn(colours.box, scheme[kBoxTextEntry]);
    colours.highlightText = LegibleOn(colours.highlight, scheme[kHighlightTextEntry]);
    return colours;
}

WindowColours ColoursOfMessages(const Options& options, const MainWindow& desktop) {
    WindowColours colours = ColoursOfWindows(options, desktop);
    colours.frame = colours.box;
    colours.frameText = colours.boxText = LegibleOn(colours.frame, BoardDefaultsOn(colours.frame).node);
    return colours;
}

}  // namespace tidewalk
