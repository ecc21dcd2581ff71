// SPDX-License-Identifier: MIT
#include "options/options_form.h"

#include <algorithm>

#include "model/contrast.h"
#include "model/job.h"
#include "model/numbers.h"
#include "options/colour_scheme.h"

namespace tidewalk {

namespace {

constexpr std::string_view kEnding = ".col";

std::string WithoutEnding(const std::string& name) {
    return name.substr(0, LowerCase(name).find(kEnding));
}

bool TakePicked(Colour& swatch, std::optional<Colour> picked) {
    if (picked) swatch = *picked;
    return picked.has_value();
}

/// A scheme made elsewhere may keep anything in these entries.
bool SuggestsLegibleBoard(const Options& options) {
    const auto& colours = options.SchemeColours;
    const Colour background = colours[kBackgroundEntry];
    return Contrast(colours[kGridEntry], background) >= kShapeContrast &&
           Contrast(colours[kChainEntry], background) >= kShapeContrast &&
           Contrast(colours[kNodeEntry], background) >= kShapeContrast &&
           Contrast(colours[kGivenEntry], colours[kNodeEntry]) >= kTextContrast;
}

void ShowSuggestedBoard(OptionsForm& form) {
    const auto& colours = form.draft.SchemeColours;
    if (IsDefaultScheme(form.draft.ColourSchemeName)) {
        const BoardDefaults defaults = BoardDefaultsOn(colours[kBackgroundEntry]);
        form.Line1 = defaults.chain;
        form.Line2 = form.Label2 = defaults.node;
        form.Label1 = LegibleOn(defaults.node, kDefaultGivenColour);
    } else if (SuggestsLegibleBoard(form.draft)) {
        form.Line1 = colours[kChainEntry];
        form.Line2 = colours[kGridEntry];
        form.Label1 = colours[kGivenEntry];
        form.Label2 = colours[kNodeEntry];
    }
}

/// Reads the scheme `name`, with its ending, into the draft. What was made lighter or darker before belonged to another
/// scheme; "default.col" has no colour of its own to keep.
void TakeScheme(Game& game, OptionsForm& form, const std::string& name) {
    form.draft.ColourSchemeName = name;
    Colour backColour = 0;
    ReadColourScheme(game, name, backColour, form.draft);
    const bool isDefault = IsDefaultScheme(form.draft.ColourSchemeName);
    form.draft.SchemeColours[kAdjustedEntry] = isDefault ? 0 : form.AdjustedColour();
    form.Combo1 = WithoutEnding(form.draft.ColourSchemeName);
}

}  // namespace

OptionsForm OpenOptions(const Game& game) {
    OptionsForm form;
    form.draft = game;
    form.schemes = game.schemeNames;
    form.Combo1 = WithoutEnding(game.ColourSchemeName);
    if (std::find(form.schemes.begin(), form.schemes.end(), form.Combo1) == form.schemes.end()) {
        form.schemes.push_back(form.Combo1);
    }
    form.Line1 = game.ChainColour;
    form.Line2 = game.GridColour;
    form.Label1 = game.GivenColour;
    form.Label2 = game.NodeColour;
    form.Text3 = NumText(game.PrintLineWidth);
    form.Option2 = game.NodeShape == 1;
    form.Check1 = game.ShowLines != 0;
    form.Check2 = game.ShowFinished != 0;
    return form;
}

WindowColours FormColours(const Game& game, const OptionsForm& form) {
    return ColoursOfWindows(form.draft, game.window);
}

void Combo1_Click(Game& game, OptionsForm& form, const std::string& name) {
    TakeScheme(game, form, name + std::string(kEnding));
    ShowSuggestedBoard(form);
}

void cmdadjust4_Click(OptionsForm& form, int index) {
    AdjustBrightness(form.draft, index);
}

bool cmdgridcol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form.Line2, picked);
}
bool cmdchaincol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form.Line1, picked);
}
bool cmdgivenfg_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form.Label1, picked);
}
bool cmdnodecol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form.Label2, picked);
}

void command1_Click(Game& game, const OptionsForm& form) {
    game.ColourSchemeName = form.draft.ColourSchemeName;
    game.SchemeColours = form.draft.SchemeColours;
    game.ChainColour = form.Line1;
    game.GridColour = form.Line2;
    game.GivenColour = form.Label1;
    game.NodeColour = form.Label2;
    game.NodeShape = form.Option2 ? 1 : 0;
    game.ShowLines = form.Check1 ? 1 : 0;
    game.ShowFinished = form.Check2 ? 1 : 0;
    const int width = RoundedVal(form.Text3);
    if (width >= 1) game.PrintLineWidth = std::min(width, kWidestPrintLine);
    ApplyColourScheme(game);
    if (!JobRuns(game)) game.board.RedrawBoard(game, false);
}

void reset_Click(Game& game, OptionsForm& form) {
    TakeScheme(game, form, "xp.col");
    form.Text3 = "4";
    form.Line1 = form.Line2 = form.Label1 = form.Label2 = kBlack;
    form.Option2 = false;
    form.Check1 = true;
    form.Check2 = false;
    command1_Click(game, form);
}

}  // namespace tidewalk
