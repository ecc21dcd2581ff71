// SPDX-License-Identifier: MIT
#include "options/options_form.h"

#include "game/job.h"
#include "options/colour_scheme.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

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
    Options& options = game.options;
    options.ColourSchemeName = "Own.COL";
    options.ChainColour = 1;
    options.GridColour = 2;
    options.PrintLineWidth = 7;
    for (const int set : {0, 1}) {
        options.NodeShape = options.ShowLines = set;
        options.ShowFinished = set != 0;
        form = OpenOptions(game);
        EXPECT_EQ(form.Option2 + form.Check1 + form.draft.ShowFinished, 3 * set);
    }
    EXPECT_EQ(form.Combo1, "Own");
    EXPECT_EQ(form.schemes, (Lines{"xp", "default", "dusk", "Own"})) << "a scheme of no list stands there too";
    EXPECT_EQ(Swatches(), Board());
    EXPECT_EQ(form.Text3, "7");
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
    EXPECT_NE(FormColours(game, form).box, scheme[kBackgroundEntry]) << "the window itself wears it";
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
    EXPECT_EQ(game.world.choices["PalerFinished"], "1");
    game.options = {};
    ReadChoices(game);
    EXPECT_TRUE(options.ShowFinished && options.StrictCheck && !options.KeepPlay && !options.ShowTime);
    game.Run(reset_Click, form);
    EXPECT_EQ(options.ColourSchemeName, "xp.col");
    EXPECT_EQ(form.Combo1, "xp");
    EXPECT_EQ(options.SchemeColours[kFaceEntry], Rgb(242, 243, 245));
    EXPECT_EQ(options.SchemeColours[kAdjustedEntry], Rgb(242, 243, 245));
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
    for (const auto& [typed, width] : {std::pair{"", 4}, {"abc", 4}, {"0", 4}, {"1", 1}, {"50", 50}, {"1e9", 50}}) {
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
