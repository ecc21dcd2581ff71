// SPDX-License-Identifier: MIT
// Colour schemes, and the options window.
#include <random>

#include "drawing/contrast.h"
#include "game/job.h"
#include "model/file_error.h"
#include "options/colour_scheme.h"
#include "options/options_form.h"
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
    EXPECT_EQ(game.Entry(12), Rgb(112, 2, 3));
    game.world.Expect("Color Scheme: B.col not found", "vbcritical+vbok");
    EXPECT_EQ(game.Wear("B.col"), 0U);
    EXPECT_EQ(game.options.ColourSchemeName, "default.col");
    EXPECT_EQ(game.world.Seen(), "colours, box, events, colours");
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
    game.Wear("a.col");
    EXPECT_EQ(game.Entry(kAdjustedEntry), Rgb(14, 2, 3));
    AdjustBrightness(game.options, 2);
    game.Wear("a.col");
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(24, 12, 13));
    AdjustBrightness(game.options, 1);
    EXPECT_EQ(game.Entry(kFaceEntry), Rgb(14, 10, 10));
    for (int i = 0; i < 25; ++i)
        AdjustBrightness(game.options, 2);
    EXPECT_EQ(game.Entry(kFaceEntry), kWhite);
}

TEST(ColourScheme, TheDefaultFollowsTheDesktopInAnyLetterCase) {
    SchemeGame game("");
    const auto& desktop = game.world.desktop;
    const Colour list = desktop.at(DesktopColour::ListBackground);
    game.options.GivenColour = kBlack;
    EXPECT_EQ(game.Wear("DEFAULT.Col"), list);
    EXPECT_EQ(game.Entry(kBackgroundEntry), desktop.at(DesktopColour::WindowFace));
    EXPECT_EQ(game.Entry(kOutlineEntry), list);
    EXPECT_EQ(game.options.ChainColour, kDefaultChainColour);
    EXPECT_EQ(game.options.GivenColour, kBlack) << "the player's own";
    EXPECT_EQ(game.Windows().face, desktop.at(DesktopColour::ButtonFace));
    EXPECT_EQ(game.Windows().frame, list);
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
    EXPECT_EQ(ColoursOfMessages(game.options, game.world).frame, windows.box);
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
    EXPECT_GE(lines.size(), 14U * 8);
    EXPECT_EQ(lines.size() % 14, 0U);
    for (std::size_t at = 0; at < lines.size(); at += 14) {
        SCOPED_TRACE(lines[at]);
        EXPECT_TRUE(lines[at].ends_with(".col"));
        EXPECT_TRUE(IsShippedScheme(lines[at].substr(0, lines[at].size() - 4)));
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

using Colours = std::array<Colour, 4>;

/// A game on its first puzzle with the schemes that ship, wearing "xp.col".
struct OptionsWindow : testing::Test {
    OptionsWindow() {
        game.ColourListPath = TIDEWALK_DATA_DIR "/all.col";
        game.options.schemeNames = {"xp", "default", "dusk"};
        Colour back = 0;
        LoadColourScheme(game, "xp.col", back);
        ApplyColourScheme(game);
        game.Load(1);
        form = OpenOptions(game);
    }

    /// Of the player's bridges, the thin lines, the numbers and the islands.
    Colours Board() const {
        return {game.options.ChainColour, game.options.GridColour, game.options.GivenColour, game.options.NodeColour};
    }
    Colours Swatches() const { return {form.Line1, form.Line2, form.Label1, form.Label2}; }
    /// What the check boxes stand for: circles, paler islands, lines.
    std::string Checked() const {
        return std::to_string(game.options.NodeShape) + std::to_string(game.options.ShowFinished) +
               std::to_string(game.options.ShowLines);
    }

    TestGame game{{kSmallPuzzle}};
    OptionsForm form;
};

TEST_F(OptionsWindow, ShowsTheOptionsAsTheyAre) {
    game.options.ColourSchemeName = "Own.COL";
    game.options.ChainColour = 1;
    game.options.GridColour = 2;
    form = OpenOptions(game);
    EXPECT_EQ(form.schemes, (Lines{"xp", "default", "dusk", "Own"})) << "a scheme of no list stands there too";
    EXPECT_EQ(Swatches(), Board());
}

TEST_F(OptionsWindow, ChangesNothingBeforeTheSettingsAreApplied) {
    const auto scheme = game.options.SchemeColours;
    game.Run(Combo1_Click, form, "dusk");
    const Colour face = form.AdjustedColour();
    cmdadjust4_Click(form, 2);
    EXPECT_GT(RedOf(form.AdjustedColour()), RedOf(face)) << "lighter";
    cmdadjust4_Click(form, 1);
    cmdadjust4_Click(form, 1);
    EXPECT_LT(RedOf(form.AdjustedColour()), RedOf(face)) << "darker";
    EXPECT_EQ(game.options.ColourSchemeName, "xp.col");
    EXPECT_EQ(game.options.SchemeColours, scheme);
    EXPECT_EQ(game.world.Seen(), "");
}

TEST_F(OptionsWindow, ApplyChangesTheBoardAtOnceAndResetGoesBackToTheDefaults) {
    game.Run(Combo1_Click, form, "dusk");
    cmdadjust4_Click(form, 2);
    EXPECT_TRUE(cmdchaincol_Click(form, 1) && cmdgridcol_Click(form, 2) && cmdgivenfg_Click(form, 3));
    EXPECT_TRUE(cmdnodecol_Click(form, 4));
    EXPECT_FALSE(cmdnodecol_Click(form, std::nullopt)) << "nothing is picked";
    form.Option2 = form.draft.ShowFinished = form.draft.StrictCheck = true;
    form.draft.KeepPlay = false;
    form.Check1 = false;
    form.Text3 = "9";
    game.Run(command1_Click, form);
    const Options& options = game.options;
    EXPECT_EQ(options.ColourSchemeName, "dusk.col");
    EXPECT_EQ(options.SchemeColours[kFaceEntry], form.AdjustedColour());
    EXPECT_EQ(Board(), (Colours{1, 2, 3, 4}));
    EXPECT_EQ(Checked(), "110");
    EXPECT_EQ(options.PrintLineWidth, 9);
    EXPECT_EQ(game.world.Seen(), "colours");
    game.options = {};
    ReadChoices(game);
    EXPECT_TRUE(options.ShowFinished && options.StrictCheck && !options.KeepPlay && !options.ShowTime);
    game.Run(reset_Click, form);
    EXPECT_EQ(options.ColourSchemeName, "xp.col");
    EXPECT_EQ(options.SchemeColours[kFaceEntry], Rgb(242, 243, 245));
    EXPECT_EQ(Board(), (Colours{Rgb(128, 0, 0), Rgb(192, 192, 192), kWhite, Rgb(20, 20, 20)}));
    EXPECT_EQ(Checked(), "001");
    EXPECT_EQ(options.PrintLineWidth, 4);
}

TEST_F(OptionsWindow, TheBrightnessOfOneSchemeIsNotCarriedToTheNext) {
    for (const bool desktop : {false, true}) {
        cmdadjust4_Click(form, 1);
        game.Run(Combo1_Click, form, desktop ? "default" : "dusk");
        EXPECT_EQ(form.draft.SchemeColours[kAdjustedEntry], desktop ? 0 : form.AdjustedColour());
    }
}

TEST_F(OptionsWindow, AJobKeepsItsBoardWhenOptionsAreApplied) {
    const Job job(game, "AutoSolve");
    const int before = game.world.picture.timesCleared;
    game.Run(command1_Click, form);
    EXPECT_EQ(game.world.picture.timesCleared, before);
}

TEST_F(OptionsWindow, ALineWidthThatIsNoneKeepsTheOldOne) {
    for (const auto& [typed, width] : {std::pair{"abc", 4}, {"0", 4}, {"1", 1}, {"1e9", 50}}) {
        form.Text3 = typed;
        game.Run(command1_Click, form);
        EXPECT_EQ(game.options.PrintLineWidth, width);
    }
}

TEST_F(OptionsWindow, BoardColoursAreSuggestedIfTheyCanBeRead) {
    const std::string dark = "0;0;90\n";
    const std::string light = "250;250;250\n";
    const Colours before = Swatches();
    for (const auto& [grid, chain, given, node] : {std::array{light, dark, light, dark},
                                                   {dark, light, light, dark},
                                                   {dark, dark, dark, dark},
                                                   {dark, dark, dark, light},
                                                   {dark, "90;0;0\n", light, "0;90;0\n"}}) {
        const std::string others = dark + dark + light + dark + light;
        game.ColourListPath = game.folder.Write("own", "own.col\n" + others + grid + chain + given + node + others);
        game.Run(Combo1_Click, form, "own");
        EXPECT_EQ(Swatches() == before, chain != "90;0;0\n");
    }
    EXPECT_EQ(Swatches(), (Colours{Rgb(90, 0, 0), Rgb(0, 0, 90), Rgb(250, 250, 250), Rgb(0, 90, 0)}));
    EXPECT_EQ(HardToSee(AppliedOptions(game, form)), "");
    game.world.Expect("Color Scheme: gone.col not found", "vbcritical+vbok");
    game.Run(Combo1_Click, form, "gone");
    EXPECT_EQ(form.Combo1, "default") << "a scheme that went missing falls back to the desktop";
    EXPECT_EQ(Swatches(), (Colours{kDefaultChainColour, kDefaultNodeColour, kDefaultGivenColour, kDefaultNodeColour}));
}

TEST_F(OptionsWindow, WhatIsShownBeforeIsWhatIsAppliedAfterwards) {
    for (const char* const name : {"default", "dusk"}) {
        game.Run(Combo1_Click, form, name);
        SetBoardColour(form, &OptionsForm::Line1, Rgb(1, 2, 3));
        const Options before = AppliedOptions(game, form);
        const WindowColours worn = FormColours(game, form);
        game.Run(command1_Click, form);
        EXPECT_EQ(Board(), (Colours{before.ChainColour, before.GridColour, before.GivenColour, before.NodeColour}));
        EXPECT_EQ(game.options.SchemeColours, before.SchemeColours);
        EXPECT_EQ(worn.box, ColoursOfWindows(game.options, game.world).box);
    }
}

TEST_F(OptionsWindow, ASchemeOfOnesOwnIsACopyThatCanBeChangedAndDeleted) {
    const std::string shipped = game.folder.Read(game.ColourListPath);
    game.ColourListPath = game.folder.Write("all.col", shipped);
    game.Run(Combo1_Click, form, "default");
    const WindowColours desktop = FormColours(game, form);
    EXPECT_FALSE(IsOwnScheme(form));
    EXPECT_NE(AddScheme(game, form, "dusk"), "");
    EXPECT_EQ(AddScheme(game, form, "mine"), "");
    EXPECT_TRUE(IsOwnScheme(form));
    EXPECT_EQ(form.schemes.back() + form.Combo1 + form.draft.ColourSchemeName, "mineminemine.col");
    EXPECT_EQ(FormColours(game, form).face, desktop.face) << "as the desktop, and from now on for itself";
    EXPECT_EQ(FormColours(game, form).highlight, desktop.highlight);
    SetSchemePart(form, kFaceEntry, Rgb(10, 20, 30));
    SetSchemePart(form, kBackgroundEntry, Rgb(250, 240, 230));
    cmdadjust4_Click(form, 2);
    EXPECT_TRUE(cmdchaincol_Click(form, Rgb(90, 0, 0)));
    game.Run(Combo1_Click, form, "dusk");
    cmdadjust4_Click(form, 2);
    game.Run(Combo1_Click, form, "mine");
    EXPECT_EQ(form.Line1, Rgb(90, 0, 0)) << "what was changed waits to be applied";
    EXPECT_EQ(game.folder.Read("all.col"), shipped);
    EXPECT_TRUE(game.Run(command1_Click, form));
    const std::string text = game.folder.Read("all.col");
    EXPECT_EQ(text.substr(0, shipped.size()), shipped);
    EXPECT_EQ(text.substr(shipped.size(), 8), "mine.col");
    EXPECT_EQ(game.options.schemeNames.back(), "mine");
    form = OpenOptions(game);
    game.Run(Combo1_Click, form, "mine");
    EXPECT_EQ(FormColours(game, form).face, Rgb(20, 30, 40)) << "with its brightness";
    EXPECT_EQ(FormColours(game, form).box, Rgb(250, 240, 230));
    EXPECT_EQ(form.Line1, Rgb(90, 0, 0));
    game.Run(DeleteScheme, form);
    EXPECT_EQ(form.Combo1, "xp");
    EXPECT_EQ(game.folder.Read("all.col"), text);
    EXPECT_TRUE(game.Run(command1_Click, form));
    EXPECT_EQ(game.folder.Read("all.col"), shipped);
    EXPECT_EQ(game.options.schemeNames, (Lines{"xp", "default", "dusk"}));
}

TEST_F(OptionsWindow, SchemesThatCannotBeWrittenLeaveEverythingAsItWas) {
    EXPECT_EQ(AddScheme(game, form, "mine"), "");
    game.ColourListPath = game.folder.Path("");
    game.world.Expect("The colour schemes could not be saved.\r\n" + game.ColourListPath + ": Is a directory",
                      "system ok");
    EXPECT_FALSE(game.Run(command1_Click, form));
    EXPECT_EQ(game.options.ColourSchemeName, "xp.col");
    EXPECT_EQ(game.options.schemeNames.size(), 3U);
}

}  // namespace
}  // namespace tidewalk::test
