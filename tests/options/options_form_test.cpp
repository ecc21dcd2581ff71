// SPDX-License-Identifier: MIT
#include "options/options_form.h"

#include <gtest/gtest.h>

#include "model/contrast.h"
#include "options/colour_scheme.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A game on its first puzzle with the schemes that ship, wearing "xp.col".
class OptionsTest : public testing::Test {
 protected:
    OptionsTest() {
        game.ColourListPath = std::string(TIDEWALK_DATA_DIR) + "/all.col";
        game.schemeNames = {"xp", "default", "dusk"};
        Colour back = 0;
        LoadColourScheme(game, "xp.col", back);
        ApplyColourScheme(game);
        game.Load(1);
    }

    TestGame game{{kSmallPuzzle}};
};

TEST_F(OptionsTest, NothingHappensBeforeTheSettingsAreApplied) {
    const auto scheme = game.SchemeColours;
    const int coloured = game.window.timesColoured;
    OptionsForm form = OpenOptions(game);
    EXPECT_EQ(form.Combo1, "xp");
    EXPECT_EQ(form.Text3, "4");
    Combo1_Click(game, form, "dusk");
    cmdadjust4_Click(form, 2);
    EXPECT_NE(form.AdjustedColour(), scheme[kFaceEntry]);
    EXPECT_EQ(game.ColourSchemeName, "xp.col");
    EXPECT_EQ(game.SchemeColours, scheme);
    EXPECT_EQ(game.window.timesColoured, coloured);
}

TEST_F(OptionsTest, ApplyChangesTheBoardAtOnce) {
    OptionsForm form = OpenOptions(game);
    Combo1_Click(game, form, "dusk");
    EXPECT_TRUE(cmdchaincol_Click(form, Rgb(1, 2, 3)));
    EXPECT_FALSE(cmdnodecol_Click(form, std::nullopt));
    form.Option2 = true;
    form.Check1 = false;
    form.Text3 = "7";
    game.pictures.surface.calls.clear();
    command1_Click(game, form);
    EXPECT_EQ(game.ColourSchemeName, "dusk.col");
    EXPECT_EQ(game.ChainColour, Rgb(1, 2, 3));
    EXPECT_EQ(game.NodeColour, game.SchemeColours[kNodeEntry]);
    EXPECT_EQ(game.GivenColour, game.SchemeColours[kGivenEntry]);
    EXPECT_EQ(game.PrintLineWidth, 7);
    EXPECT_EQ(game.ShowLines, 0);
    EXPECT_GT(game.pictures.surface.Count("circle"), 0);
    EXPECT_EQ(game.pictures.surface.calls.front(), "clear " + std::to_string(game.SchemeColours[kBackgroundEntry]));
}

TEST_F(OptionsTest, TheBrightnessOfOneSchemeIsNotCarriedToTheNext) {
    OptionsForm form = OpenOptions(game);
    cmdadjust4_Click(form, 1);
    Combo1_Click(game, form, "dusk");
    const Colour face = form.AdjustedColour();
    command1_Click(game, form);
    EXPECT_EQ(game.SchemeColours[kFaceEntry], face);
}

TEST_F(OptionsTest, AJobKeepsItsBoardWhenOptionsAreApplied) {
    game.jobRunning = true;
    game.pictures.surface.calls.clear();
    command1_Click(game, OpenOptions(game));
    EXPECT_TRUE(game.pictures.surface.calls.empty());
}

TEST_F(OptionsTest, ALineWidthThatIsNoneKeepsTheOldOne) {
    OptionsForm form = OpenOptions(game);
    for (const char* text : {"", "abc", "0", "-3"}) {
        form.Text3 = text;
        command1_Click(game, form);
        EXPECT_EQ(game.PrintLineWidth, 4);
    }
    form.Text3 = "1e9";
    command1_Click(game, form);
    EXPECT_EQ(game.PrintLineWidth, kWidestPrintLine);
}

TEST_F(OptionsTest, ResetGoesBackToTheDefaultsAndTheNumbersCanBeReadAllTheSame) {
    OptionsForm form = OpenOptions(game);
    Combo1_Click(game, form, "dusk");
    form.Option2 = true;
    form.Check2 = true;
    command1_Click(game, form);
    form = OpenOptions(game);
    EXPECT_TRUE(form.Check2);
    game.pictures.surface.calls.clear();
    reset_Click(game, form);
    EXPECT_EQ(game.ColourSchemeName, "xp.col");
    EXPECT_EQ(game.SchemeColours[kAdjustedEntry], game.SchemeColours[kFaceEntry]);
    EXPECT_EQ(game.NodeShape, 0);
    EXPECT_EQ(game.ShowLines, 1);
    EXPECT_EQ(game.ShowFinished, 0);
    EXPECT_EQ(game.PrintLineWidth, 4);
    EXPECT_EQ(game.NodeColour, kBlack);
    EXPECT_EQ(game.GivenColour, kBlack);
    const auto& calls = game.pictures.surface.calls;
    int white = 0;
    for (const std::string& call : calls) {
        if (call.rfind("print", 0) == 0) white += call.ends_with(" " + std::to_string(kWhite)) ? 1 : 0;
    }
    EXPECT_EQ(white, game.pictures.surface.Count("print"));
    EXPECT_GT(white, 0);
}

TEST_F(OptionsTest, ASchemeThatWentMissingFallsBackToTheDesktop) {
    OptionsForm form = OpenOptions(game);
    game.prompts.Expect("Color Scheme: gone.col not found", "vbcritical+vbok", 1);
    Combo1_Click(game, form, "gone");
    EXPECT_EQ(form.Combo1, "default");
    command1_Click(game, form);
    EXPECT_EQ(game.ColourSchemeName, "default.col");
    EXPECT_GE(Contrast(game.NodeColour, game.Picture1BackColor), kShapeContrast);
}

}  // namespace
}  // namespace tidewalk::test
