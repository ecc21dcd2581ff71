// SPDX-License-Identifier: MIT
#include "options/colour_scheme.h"

#include <random>

#include "drawing/contrast.h"
#include "model/file_error.h"
#include "options/scheme_file.h"
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

/// A game with these schemes.
struct SchemeGame : TestGame {
    explicit SchemeGame(const std::string& bytes) { ColourListPath = folder.Write("all.col", bytes); }

    /// Loads a scheme and gives it to the windows; returns the background that was loaded.
    Colour Wear(const std::string& name) {
        Colour back = 77;
        options.ColourSchemeName = name;
        Run(LoadColourScheme, name, back);
        Run(ApplyColourScheme);
        return back;
    }
    Colour Entry(std::size_t at) const { return options.SchemeColours[at]; }
    WindowColours Windows() const { return ColoursOfWindows(options, world); }
};

TEST(ColourScheme, IsFoundByItsExactName) {
    SchemeGame game(Scheme("a.col", 10) + Scheme("b.col", 100));
    EXPECT_EQ(game.Wear("b.col"), Rgb(102, 2, 3));
    EXPECT_EQ(game.Entry(0), Rgb(100, 2, 3));
    EXPECT_EQ(game.Entry(12), Rgb(112, 2, 3));
    game.world.Expect("Color Scheme: B.col not found", "vbcritical+vbok");
    EXPECT_EQ(game.Wear("B.col"), 0U);
    EXPECT_EQ(game.options.ColourSchemeName, "default.col");
    EXPECT_EQ(game.world.Seen(), "colours, box, events, colours");
    game.ColourListPath = game.folder.Path("");
    game.world.Expect("Color Scheme: a.col not found", "vbcritical+vbok");
    game.Wear("a.col");
}

TEST(ColourScheme, CutShortItKeepsTheOldEntriesAndTakesNoneOfTheNextScheme) {
    for (const char* next : {"", "b.col\r\n9;9;9\r\n", "\r\n9;9;9\r\n", "9;9\r\n9;9;9\r\n"}) {
        SchemeGame game("a.col\n-5;300;x;9\n 1 ; 2 ;1e99\n" + std::string(next));
        game.options.SchemeColours.fill(77);
        EXPECT_EQ(game.Wear("a.col"), 77U);
        EXPECT_EQ(game.Entry(0), Rgb(0, 255, 0)) << "channels stay within a byte";
        EXPECT_EQ(game.Entry(1), Rgb(1, 2, 255));
        for (std::size_t i = 2; i < kSchemeEntries; ++i)
            EXPECT_EQ(game.Entry(i), 77U);
    }
}

TEST(ColourScheme, TheAdjustedFaceOutlivesTheFileAndStopsAtWhiteAndNearBlack) {
    SchemeGame game(Scheme("a.col", 10));
    game.options.AdjustIndex = 7;
    game.Wear("a.col");
    EXPECT_EQ(game.Entry(kAdjustedEntry), Rgb(14, 2, 3));
    EXPECT_EQ(game.options.NodeColour, kDefaultNodeColour);
    AdjustBrightness(game.options, 2);
    game.Wear("a.col");
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(24, 12, 13));
    AdjustBrightness(game.options, 0);
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(24, 12, 13));
    AdjustBrightness(game.options, 1);
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(14, 10, 10));
    for (int i = 0; i < 25; ++i)
        AdjustBrightness(game.options, 2);
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(255, 255, 255));
    EXPECT_EQ(game.Entry(kAdjustedEntry), kWhite);
}

TEST(ColourScheme, TheDefaultFollowsTheDesktopInAnyLetterCase) {
    SchemeGame game("");
    const auto& desktop = game.world.desktop;
    Options loaded;
    loaded.AdjustIndex = 5;
    Colour list = 0;
    ReadColourScheme(game, "DEFAULT.Col", list, loaded);
    EXPECT_EQ(list, desktop.at(DesktopColour::ListBackground));
    EXPECT_EQ(loaded.SchemeColours[kBackgroundEntry], list);
    EXPECT_EQ(loaded.SchemeColours[5], list);
    EXPECT_EQ(loaded.SchemeColours[kOutlineEntry], desktop.at(DesktopColour::WindowFace));
    game.options.GivenColour = kBlack;
    EXPECT_EQ(game.Wear("DEFAULT.Col"), list);
    EXPECT_EQ(game.Entry(kBackgroundEntry), desktop.at(DesktopColour::WindowFace));
    EXPECT_EQ(game.Entry(kOutlineEntry), list);
    EXPECT_EQ(game.Entry(kFaceEntry), kWhite);
    EXPECT_EQ(game.options.ChainColour, kDefaultChainColour);
    EXPECT_EQ(game.options.GridColour, kDefaultNodeColour);
    EXPECT_EQ(game.options.GivenColour, kBlack) << "the player's own";
    EXPECT_EQ(game.Windows().face, desktop.at(DesktopColour::ButtonFace));
    EXPECT_EQ(game.Windows().frame, list);
    EXPECT_EQ(game.Windows().highlight, desktop.at(DesktopColour::Highlight));
    AdjustBrightness(game.options, 1);
    EXPECT_EQ(game.Windows().face, Rgb(245, 245, 245));
}

TEST(ColourScheme, OnADarkDesktopTheDefaultStillShowsTheBoard) {
    SchemeGame game("");
    game.world.desktop[DesktopColour::WindowFace] = Rgb(45, 45, 48);
    game.world.desktop[DesktopColour::ButtonFace] = Rgb(55, 55, 58);
    game.Wear("default.col");
    const Options& options = game.options;
    EXPECT_EQ(options.NodeColour, Rgb(235, 235, 235));
    EXPECT_EQ(options.GridColour, Rgb(235, 235, 235));
    EXPECT_EQ(options.ChainColour, Rgb(255, 140, 120));
    EXPECT_EQ(options.GivenColour, kBlack) << "white numbers would be lost";
    EXPECT_EQ(game.Windows().face, Rgb(55, 55, 58));
}

TEST(WindowColours, AreThoseOfTheScheme) {
    SchemeGame game(Scheme("a.col", 10));
    game.Wear("a.col");
    for (const std::size_t entry : {kFaceTextEntry, kBoxTextEntry, kHighlightEntry, kHighlightTextEntry})
        game.options.SchemeColours[entry] = kWhite - static_cast<Colour>(entry);
    const WindowColours windows = game.Windows();
    EXPECT_EQ((std::array{windows.frame, windows.face, windows.box, windows.outline}),
              (std::array{Rgb(14, 2, 3), Rgb(14, 2, 3), Rgb(12, 2, 3), Rgb(13, 2, 3)}));
    EXPECT_EQ((std::array{windows.frameText, windows.faceText, windows.boxText, windows.highlight}),
              (std::array{kWhite, kWhite, kWhite - 1, kWhite - 9}));
    EXPECT_EQ(windows.highlightText, kBlack) << "white on white cannot be read";
    const WindowColours messages = ColoursOfMessages(game.options, game.world);
    EXPECT_EQ((std::array{messages.frame, messages.frameText, messages.boxText, messages.face}),
              (std::array{windows.box, Rgb(235, 235, 235), Rgb(235, 235, 235), windows.face}));
}

void ExpectLegible(const WindowColours& colours) {
    EXPECT_GE(Contrast(colours.frameText, colours.frame), kTextContrast);
    EXPECT_GE(Contrast(colours.faceText, colours.face), kTextContrast);
    EXPECT_GE(Contrast(colours.boxText, colours.box), kTextContrast);
    EXPECT_GE(Contrast(colours.highlightText, colours.highlight), kTextContrast);
    EXPECT_GE(Contrast(colours.highlight, colours.box), kShapeContrast);
}

TEST(WindowColours, AreLegibleOnAnySchemeThatAFileMayHold) {
    const World desktop;
    std::mt19937 random(3);
    for (int run = 0; run < 500; ++run) {
        Options options;
        for (Colour& colour : options.SchemeColours)
            colour = static_cast<Colour>(random() & 0xFFFFFF);
        ExpectLegible(ColoursOfWindows(options, desktop));
        ExpectLegible(ColoursOfMessages(options, desktop));
    }
}

TEST(SchemeFile, IsChangedInThoseSchemesAloneAndOtherwiseKeepsEveryByte) {
    SchemeEntries entries;
    entries.fill(Rgb(0, 80, 255));
    const auto written = [&](std::string name) {
        name += ".col\r\n";
        for (std::size_t i = 0; i < kReadEntries; ++i)
            name += "0;80;255\r\n";
        return name;
    };
    const std::string foreign = std::string("\xEF\xBB\xBF# \xFF\0 1;2;3\n\n", 14);
    const std::string cut = "a.col\n1;2;3\n4;5;6\n";
    const SchemeGame game(foreign + cut + "a note\r\n" + Scheme("b.col", 100) + "7;7;7\nc.col\n9;9;9");
    const std::string& path = game.ColourListPath;
    const SchemeEdits edits{{"a", entries}, {"b", std::nullopt}, {"gone", std::nullopt}, {"new", entries}};
    const std::string before = game.folder.Read("all.col");
    auto holder = SystemFile::Open(path, SystemFile::Mode::Change);
    ASSERT_TRUE(holder && holder->TryLock());
    EXPECT_THROW(WriteSchemes(path, edits, [] { return false; }), FileError);
    EXPECT_EQ(game.folder.Read("all.col"), before);
    holder.reset();
    WriteSchemes(path, edits, WaitOn);
    EXPECT_EQ(game.folder.Read("all.col"),
              foreign + written("a") + "a note\r\n7;7;7\nc.col\n9;9;9\r\n" + written("new"));
}

TEST(SchemeFile, RefusesNamesThatItOrTheConfigurationCouldNotHold) {
    const std::vector<std::string> taken{"xp", "Mine"};
    for (const char* const name : {"", " ", " a", "a\t", "a\nb", "a\rb", "a,b", "1;2;3", "a.col", "b.COLOUR", "DEFAULT",
                                   "my default", "mine", "XP", "01234567890123456789012345678901234567890"})
        EXPECT_NE(WhyNoSchemeName(name, taken), "") << name;
    for (const char* const name : {"a", "mine 2", "Müller's #1", "äöüäöüäöüäöüäöüäöüäöüäöüäöüäöüäöüäöüäöüä"})
        EXPECT_EQ(WhyNoSchemeName(name, taken), "") << name;
}

TEST(ShippedSchemes, AreCompleteAndLegible) {
    TestGame game;
    const Lines lines = LinesOf(game.folder.Read(game.ColourListPath = TIDEWALK_DATA_DIR "/all.col"));
    EXPECT_EQ(lines.front(), "xp.col");
    EXPECT_GE(lines.size(), 14U * 8);
    EXPECT_EQ(lines.size() % 14, 0U);
    for (std::size_t at = 0; at < lines.size(); at += 14) {
        SCOPED_TRACE(lines[at]);
        EXPECT_TRUE(lines[at].ends_with(".col"));
        EXPECT_TRUE(IsShippedScheme(lines[at].substr(0, lines[at].size() - 4)));
        for (std::size_t i = 1; i < 14; ++i)
            EXPECT_EQ(std::count(lines[at + i].begin(), lines[at + i].end(), ';'), 2);
        Options options;
        options.ColourSchemeName = lines[at];
        Colour back = 0;
        ReadColourScheme(game, lines[at], back, options);
        if (IsDefaultScheme(lines[at])) continue;
        ExpectLegible(ColoursOfWindows(options, game.world));
        const auto& entry = options.SchemeColours;
        for (const std::size_t shape : {kGridEntry, kChainEntry, kNodeEntry})
            EXPECT_GE(Contrast(entry[shape], entry[kBackgroundEntry]), kShapeContrast);
        EXPECT_GE(Contrast(entry[kGivenEntry], entry[kNodeEntry]), kTextContrast);
        EXPECT_GE(Contrast(entry[kFaceTextEntry], entry[kFaceEntry]), kTextContrast);
        EXPECT_GE(Contrast(entry[kBoxTextEntry], entry[kBackgroundEntry]), kTextContrast);
    }
}

}  // namespace
}  // namespace tidewalk::test
