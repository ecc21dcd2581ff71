// SPDX-License-Identifier: MIT
#include "options/colour_scheme.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "model/contrast.h"
#include "options/window_colours.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

std::string Scheme(const std::string& name, int firstRed, int entries = 13) {
    std::string text = name + "\r\n";
    for (int i = 0; i < entries; ++i)
        text += std::to_string(firstRed + i) + ";2;3\r\n";
    return text;
}

void UseColours(TestGame& game, const std::string& bytes) {
    game.ColourListPath = game.folder.Write("all.col", bytes);
}

TEST(ColourScheme, IsFoundByItsExactName) {
    TestGame game;
    UseColours(game, Scheme("a.col", 10) + Scheme("b.col", 100));
    Colour back = 0;
    LoadColourScheme(game, "b.col", back);
    EXPECT_EQ(back, Rgb(102, 2, 3));
    EXPECT_EQ(game.SchemeColours[12], Rgb(112, 2, 3));
    game.prompts.Expect("Color Scheme: B.col not found", "vbcritical+vbok", 1);
    LoadColourScheme(game, "B.col", back);
    EXPECT_EQ(back, 0U);
    EXPECT_EQ(game.ColourSchemeName, "default.col");
    EXPECT_EQ(game.events.count, 1);
    EXPECT_EQ(game.SchemeColours[12], Rgb(112, 2, 3));
}

TEST(ColourScheme, CutShortItKeepsTheOldEntriesAndTakesNoneOfTheNextScheme) {
    for (const std::string& next : {std::string(), Scheme("b.col", 100), std::string("\r\n9;9;9\r\n")}) {
        TestGame game;
        UseColours(game, Scheme("a.col", 10, 4) + next);
        game.SchemeColours.fill(77);
        Colour back = 0;
        LoadColourScheme(game, "a.col", back);
        EXPECT_EQ(game.SchemeColours[3], Rgb(13, 2, 3));
        for (std::size_t i = 4; i < 14; ++i)
            EXPECT_EQ(game.SchemeColours[i], 77U);
    }
}

TEST(ColourScheme, ChannelsStayWithinAByte) {
    TestGame game;
    UseColours(game, "a.col\n-5;300;x;9\n 1 ; 2 ;1e99\n");
    Colour back = 0;
    LoadColourScheme(game, "a.col", back);
    EXPECT_EQ(game.SchemeColours[0], Rgb(0, 255, 0));
    EXPECT_EQ(game.SchemeColours[1], Rgb(1, 2, 255));
}

TEST(ColourScheme, TheAdjustedFaceOutlivesTheFile) {
    TestGame game;
    UseColours(game, Scheme("a.col", 10));
    game.ColourSchemeName = "a.col";
    Colour back = 0;
    LoadColourScheme(game, "a.col", back);
    ApplyColourScheme(game);
    EXPECT_EQ(game.SchemeColours[13], Rgb(14, 2, 3));
    AdjustBrightness(game, 2);
    EXPECT_EQ(game.SchemeColours[4], Rgb(24, 12, 13));
    LoadColourScheme(game, "a.col", back);
    ApplyColourScheme(game);
    EXPECT_EQ(game.SchemeColours[4], Rgb(24, 12, 13));
    EXPECT_EQ(game.Picture1BackColor, Rgb(12, 2, 3));
    EXPECT_EQ(game.window.timesColoured, 2);
}

TEST(ColourScheme, BrightnessStopsAtWhiteAndNearBlack) {
    Options options;
    options.SchemeColours[4] = Rgb(255, 250, 12);
    AdjustBrightness(options, 2);
    EXPECT_EQ(options.SchemeColours[4], Rgb(255, 255, 22));
    for (int i = 0; i < 30; ++i)
        AdjustBrightness(options, 1);
    EXPECT_EQ(options.SchemeColours[4], Rgb(10, 10, 10));
    EXPECT_EQ(options.SchemeColours[13], Rgb(10, 10, 10));
}

TEST(ColourScheme, TheDefaultFollowsTheDesktopInAnyLetterCase) {
    TestGame game;
    game.ColourSchemeName = "DEFAULT.Col";
    Colour back = 0;
    LoadColourScheme(game, game.ColourSchemeName, back);
    EXPECT_EQ(back, game.window.desktop[DesktopColour::ListBackground]);
    ApplyColourScheme(game);
    EXPECT_EQ(game.SchemeColours[2], game.window.desktop[DesktopColour::WindowFace]);
    EXPECT_EQ(game.SchemeColours[3], game.window.desktop[DesktopColour::ListBackground]);
    EXPECT_EQ(game.SchemeColours[4], kWhite);
    EXPECT_EQ(game.ChainColour, kDefaultChainColour);
    EXPECT_EQ(game.GridColour, kDefaultNodeColour);
    EXPECT_EQ(game.NodeColour, kDefaultNodeColour);
}

TEST(ColourScheme, OnADarkDesktopTheDefaultStillShowsTheBoard) {
    TestGame game;
    game.window.desktop = {{DesktopColour::WindowFace, Rgb(45, 45, 48)},
                           {DesktopColour::ListBackground, Rgb(27, 27, 29)},
                           {DesktopColour::ButtonFace, Rgb(55, 55, 58)},
                           {DesktopColour::Highlight, Rgb(60, 130, 200)}};
    game.ColourSchemeName = "default.col";
    ApplyColourScheme(game);
    for (const Colour colour : {game.NodeColour, game.GridColour, game.ChainColour}) {
        EXPECT_GE(Contrast(colour, game.Picture1BackColor), kShapeContrast);
    }
    EXPECT_GE(Contrast(game.GivenColour, game.NodeColour), kTextContrast);
    EXPECT_EQ(ColoursOfWindows(game, game.window).face, Rgb(55, 55, 58));
}

/// What every scheme that ships has to keep, whatever was chosen before it.
void ExpectLegible(const std::string& name, const Options& options, const WindowColours& colours) {
    EXPECT_GE(Contrast(colours.frameText, colours.frame), kTextContrast) << name;
    EXPECT_GE(Contrast(colours.faceText, colours.face), kTextContrast) << name;
    EXPECT_GE(Contrast(colours.boxText, colours.box), kTextContrast) << name;
    EXPECT_GE(Contrast(colours.highlightText, colours.highlight), kTextContrast) << name;
    EXPECT_GE(Contrast(colours.highlight, colours.box), kShapeContrast) << name;
    const auto& scheme = options.SchemeColours;
    EXPECT_GE(Contrast(scheme[kGridEntry], scheme[kBackgroundEntry]), kShapeContrast) << name;
    EXPECT_GE(Contrast(scheme[kChainEntry], scheme[kBackgroundEntry]), kShapeContrast) << name;
    EXPECT_GE(Contrast(scheme[kNodeEntry], scheme[kBackgroundEntry]), kShapeContrast) << name;
    EXPECT_GE(Contrast(scheme[kGivenEntry], scheme[kNodeEntry]), kTextContrast) << name;
    EXPECT_GE(Contrast(scheme[kFaceTextEntry], scheme[kFaceEntry]), kTextContrast) << name;
    EXPECT_GE(Contrast(scheme[kBoxTextEntry], scheme[kBackgroundEntry]), kTextContrast) << name;
}

TEST(ShippedSchemes, AreCompleteAndLegible) {
    TestGame game;
    game.ColourListPath = std::string(TIDEWALK_DATA_DIR) + "/all.col";
    std::ifstream file(game.ColourListPath, std::ios::binary);
    std::vector<std::string> names;
    int colours = 0;
    for (std::string line; std::getline(file, line);) {
        ASSERT_TRUE(!line.empty() && line.back() == '\r') << line;
        line.pop_back();
        if (line.find(".col") != std::string::npos) {
            names.push_back(line);
        } else {
            ++colours;
        }
    }
    EXPECT_GE(names.size(), 8U);
    EXPECT_EQ(static_cast<std::size_t>(colours), 13 * names.size());
    EXPECT_EQ(names.front(), "xp.col");
    for (const std::string& name : names) {
        Options options;
        options.ColourSchemeName = name;
        Colour back = 0;
        ReadColourScheme(game, name, back, options);
        if (IsDefaultScheme(name)) continue;
        ExpectLegible(name, options, ColoursOfWindows(options, game.window));
    }
}

TEST(WindowColours, AreLegibleOnAnySchemeThatAFileMayHold) {
    TestGame game;
    std::mt19937 random(3);
    for (int run = 0; run < 2000; ++run) {
        Options options;
        for (Colour& colour : options.SchemeColours)
            colour = static_cast<Colour>(random() & 0xFFFFFF);
        for (const WindowColours& colours :
             {ColoursOfWindows(options, game.window), ColoursOfMessages(options, game.window)}) {
            ASSERT_GE(Contrast(colours.frameText, colours.frame), kTextContrast);
            ASSERT_GE(Contrast(colours.faceText, colours.face), kTextContrast);
            ASSERT_GE(Contrast(colours.boxText, colours.box), kTextContrast);
            ASSERT_GE(Contrast(colours.highlightText, colours.highlight), kTextContrast);
        }
    }
}

}  // namespace
}  // namespace tidewalk::test
