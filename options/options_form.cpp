// SPDX-License-Identifier: MIT
#include "options/options_form.h"

#include <algorithm>

#include "board/show_board.h"
#include "drawing/contrast.h"
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
    const Options& options = game.options;
    form.draft = game.options;
    form.schemes = options.schemeNames;
    form.Combo1 = WithoutEnding(options.ColourSchemeName);
    if (std::find(form.schemes.begin(), form.schemes.end(), form.Combo1) == form.schemes.end()) {
        form.schemes.push_back(form.Combo1);
    }
    form.Line1 = options.ChainColour;
    form.Line2 = options.GridColour;
    form.Label1 = options.GivenColour;
    form.Label2 = options.NodeColour;
    form.Text3 = NumText(options.PrintLineWidth);
    form.Option2 = options.NodeShape == 1;
    form.Check1 = options.ShowLines != 0;
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
    Options& options = game.options;
    options.ColourSchemeName = form.draft.ColourSchemeName;
    options.SchemeColours = form.draft.SchemeColours;
    options.ChainColour = form.Line1;
    options.GridColour = form.Line2;
    options.GivenColour = form.Label1;
    options.NodeColour = form.Label2;
    options.NodeShape = form.Option2 ? 1 : 0;
    options.ShowLines = form.Check1 ? 1 : 0;
    for (const auto& [name, value] : kKeptOptions) {
        options.*value = form.draft.*value;
        game.choices.Set(name, options.*value ? "1" : "0");
    }
    const int width = RoundedVal(form.Text3);
    if (width >= 1) options.PrintLineWidth = std::min(width, kWidestPrintLine);
    ApplyColourScheme(game);
    if (!game.job.BusyFlag()) RedrawBoard(game, false);
}

void mnulines_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    const bool shows = game.options.ShowLines == 0;
    game.options.ShowLines = shows ? 1 : 0;
    RedrawBoard(game, false);
    game.window.SetText(WindowText::Status, shows ? "Lines shown" : "Lines hidden");
}

void ReadChoices(Game& game) {
    for (const auto& [name, value] : kKeptOptions)
        game.options.*value = RoundedVal(game.choices.Get(name, Options().*value ? "1" : "0")) == 1;
}

void reset_Click(Game& game, OptionsForm& form) {
    TakeScheme(game, form, "xp.col");
    form.Text3 = "4";
    form.Line1 = form.Line2 = form.Label1 = form.Label2 = kBlack;
    form.Option2 = false;
    form.Check1 = true;
    for (const auto& [name, value] : kKeptOptions)
        form.draft.*value = Options().*value;
    command1_Click(game, form);
}

}  // namespace tidewalk
