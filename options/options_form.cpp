// SPDX-License-Identifier: MIT
#include "options/options_form.h"

#include <algorithm>

#include "board/show_board.h"
#include "drawing/contrast.h"
#include "game/file_work.h"
#include "model/file_error.h"
#include "model/numbers.h"
#include "options/colour_scheme.h"

namespace tidewalk {

namespace {

std::string WithoutEnding(const std::string& name) {
    return name.substr(0, LowerCase(name).find(kSchemeEnding));
}

/// What the file is to hold of the scheme that the window shows. The board's colours are its suggestions; the spare
/// entries look like what lies beside them, as they do in the schemes that come with the program.
SchemeEntries EntriesOf(const OptionsForm& form) {
    SchemeEntries entries{};
    std::copy_n(form.draft.SchemeColours.begin(), entries.size(), entries.begin());
    entries[kGridEntry] = form.Line2;
    entries[kChainEntry] = form.Line1;
    entries[kGivenEntry] = form.Label1;
    entries[kNodeEntry] = form.Label2;
    entries[11] = entries[kFaceEntry];
    entries[12] = entries[kBackgroundEntry];
    return entries;
}

/// A scheme of the player's own follows what is changed while it is chosen.
void NoteEdit(OptionsForm& form) {
    if (!IsOwnScheme(form)) return;
    form.draft.ColourSchemeName = form.Combo1 + std::string(kSchemeEnding);
    form.edits[form.Combo1] = EntriesOf(form);
}

bool TakePicked(OptionsForm& form, Colour OptionsForm::*swatch, std::optional<Colour> picked) {
    if (picked) SetBoardColour(form, swatch, *picked);
    return picked.has_value();
}

/// The options with the board's colours as the scheme suggests them.
Options WithSuggestedBoard(Options options) {
    const auto& colours = options.SchemeColours;
    options.GridColour = colours[kGridEntry];
    options.ChainColour = colours[kChainEntry];
    options.GivenColour = colours[kGivenEntry];
    options.NodeColour = colours[kNodeEntry];
    return options;
}

void ShowSuggestedBoard(OptionsForm& form) {
    const auto& colours = form.draft.SchemeColours;
    if (IsDefaultScheme(form.draft.ColourSchemeName)) {
        const BoardDefaults defaults = BoardDefaultsOn(colours[kBackgroundEntry]);
        form.Line1 = defaults.chain;
        form.Line2 = form.Label2 = defaults.node;
        form.Label1 = LegibleOn(defaults.node, kDefaultGivenColour);
    } else if (HardToSee(WithSuggestedBoard(form.draft)).empty()) {
        // A scheme made elsewhere may keep anything in these entries.
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
    const auto edit = form.edits.find(WithoutEnding(name));
    if (edit != form.edits.end() && edit->second) {
        std::copy(edit->second->begin(), edit->second->end(), form.draft.SchemeColours.begin());
    } else {
        Colour backColour = 0;
        ReadColourScheme(game, name, backColour, form.draft);
    }
    const bool isDefault = IsDefaultScheme(form.draft.ColourSchemeName);
    form.draft.SchemeColours[kAdjustedEntry] = isDefault ? 0 : form.AdjustedColour();
    form.Combo1 = WithoutEnding(form.draft.ColourSchemeName);
}

/// Brings the schemes that were edited into the file and the list of names; false when the file cannot be written.
bool SaveSchemes(Game& game, const SchemeEdits& edits) {
    if (edits.empty()) return true;
    try {
        WriteSchemes(game.ColourListPath, edits, WaitingFor(game, game.ColourListPath));
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The colour schemes could not be saved.\r\n") + error.what(),
                               SystemButtons::Ok);
        return false;
    }
    std::vector<std::string>& names = game.options.schemeNames;
    for (const auto& [name, entries] : edits) {
        const auto at = std::find(names.begin(), names.end(), name);
        if (entries && at == names.end()) names.push_back(name);
        if (!entries && at != names.end()) names.erase(at);
    }
    return true;
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
    return ColoursOfWindows(AppliedOptions(game, form), game.window);
}

std::string HardToSee(const Options& options) {
    constexpr double kFaintContrast = 1.5;  // thin lines lie behind everything else, and may be faint
    const Colour background = options.BoardBackground();
    std::string all;
    const auto look = [&](const char* what, Colour front, Colour behind, double needed) {
        if (Contrast(front, behind) < needed) all += (all.empty() ? "" : ", ") + std::string(what);
    };
    look("thin lines", options.GridColour, background, kFaintContrast);
    look("bridges", options.ChainColour, background, kShapeContrast);
    look("islands", options.NodeColour, background, kShapeContrast);
    look("numbers", options.GivenColour, options.NodeColour, kTextContrast);
    return all.empty() ? all : "Hard to see: " + all;
}

void Combo1_Click(Game& game, OptionsForm& form, const std::string& name) {
    TakeScheme(game, form, name + std::string(kSchemeEnding));
    ShowSuggestedBoard(form);
}

void cmdadjust4_Click(OptionsForm& form, int index) {
    AdjustBrightness(form.draft, index);
    NoteEdit(form);
}

bool cmdgridcol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form, &OptionsForm::Line2, picked);
}
bool cmdchaincol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form, &OptionsForm::Line1, picked);
}
bool cmdgivenfg_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form, &OptionsForm::Label1, picked);
}
bool cmdnodecol_Click(OptionsForm& form, std::optional<Colour> picked) {
    return TakePicked(form, &OptionsForm::Label2, picked);
}

bool IsOwnScheme(const OptionsForm& form) {
    return !IsShippedScheme(form.Combo1) && LowerCase(form.Combo1).find("default") == std::string::npos;
}

std::string AddScheme(const Game& game, OptionsForm& form, const std::string& name) {
    std::string refusal = WhyNoSchemeName(name, form.schemes);
    if (!refusal.empty()) return refusal;
    const Options shown = AppliedOptions(game, form);
    const WindowColours windows = ColoursOfWindows(shown, game.window);
    form.Combo1 = name;
    form.schemes.push_back(name);
    form.draft.SchemeColours = shown.SchemeColours;
    auto& colours = form.draft.SchemeColours;
    // What follows the desktop is in no entry, and text whose entry cannot be read is seen in another colour.
    colours[kFaceTextEntry] = windows.faceText;
    colours[kBoxTextEntry] = windows.boxText;
    colours[kFaceEntry] = colours[kAdjustedEntry] = windows.face;
    colours[kHighlightEntry] = windows.highlight;
    colours[kHighlightTextEntry] = windows.highlightText;
    form.Line1 = shown.ChainColour;
    form.Line2 = shown.GridColour;
    form.Label1 = shown.GivenColour;
    form.Label2 = shown.NodeColour;
    NoteEdit(form);
    return "";
}

void DeleteScheme(Game& game, OptionsForm& form) {
    form.edits[form.Combo1] = std::nullopt;
    form.schemes.erase(std::remove(form.schemes.begin(), form.schemes.end(), form.Combo1), form.schemes.end());
    Combo1_Click(game, form, "xp");
}

void SetSchemePart(OptionsForm& form, std::size_t entry, Colour colour) {
    form.draft.SchemeColours[entry] = colour;
    if (entry == kFaceEntry) form.draft.SchemeColours[kAdjustedEntry] = colour;
    NoteEdit(form);
}

void SetBoardColour(OptionsForm& form, Colour OptionsForm::*swatch, Colour colour) {
    form.*swatch = colour;
    NoteEdit(form);
}

Options AppliedOptions(const Game& game, const OptionsForm& form) {
    Options options = game.options;
    options.ColourSchemeName = form.draft.ColourSchemeName;
    options.SchemeColours = form.draft.SchemeColours;
    options.ChainColour = form.Line1;
    options.GridColour = form.Line2;
    options.GivenColour = form.Label1;
    options.NodeColour = form.Label2;
    options.NodeShape = form.Option2 ? 1 : 0;
    options.ShowLines = form.Check1 ? 1 : 0;
    for (const auto& [name, value] : kKeptOptions)
        options.*value = form.draft.*value;
    const int width = RoundedVal(form.Text3);
    if (width >= 1) options.PrintLineWidth = std::min(width, kWidestPrintLine);
    WearColourScheme(options, game.window);
    return options;
}

bool command1_Click(Game& game, const OptionsForm& form) {
    if (!SaveSchemes(game, form.edits)) return false;
    game.options = AppliedOptions(game, form);
    for (const auto& [name, value] : kKeptOptions)
        game.choices.Set(name, game.options.*value ? "1" : "0");
    ApplyColourScheme(game);
    if (!game.job.BusyFlag()) RedrawBoard(game, false);
    return true;
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

bool reset_Click(Game& game, OptionsForm& form) {
    TakeScheme(game, form, "xp.col");
    form.Text3 = "4";
    // One colour for all four, as it was once, made bridges and thin lines alike.
    form.Line1 = kFirstChainColour;
    form.Line2 = kFirstGridColour;
    form.Label1 = kFirstGivenColour;
    form.Label2 = kDefaultNodeColour;
    form.Option2 = false;
    form.Check1 = true;
    for (const auto& [name, value] : kKeptOptions)
        form.draft.*value = Options().*value;
    return command1_Click(game, form);
}

}  // namespace tidewalk
