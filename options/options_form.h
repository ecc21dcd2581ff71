// SPDX-License-Identifier: MIT
// The options window without the window: what its controls show, and what its buttons do.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "game/game.h"
#include "options/scheme_file.h"
#include "options/window_colours.h"

namespace tidewalk {

/// What `Form2` shows. The program's options stay as they are until the window's settings are applied.
struct OptionsForm {
    Options draft;                     ///< the options as they would be: the scheme that is chosen, and `kKeptOptions`
    std::vector<std::string> schemes;  ///< the lines of `Combo1`
    SchemeEdits edits;                 ///< schemes that were made, changed or deleted, for "all.col"
    std::string Combo1;                ///< the chosen one
    Colour Line1 = 0;                  ///< swatch of `ChainColour`
    Colour Line2 = 0;                  ///< swatch of `GridColour`
    Colour Label1 = 0;                 ///< swatch of `GivenColour`
    Colour Label2 = 0;                 ///< swatch of `NodeColour`
    std::string Text3;                 ///< the line width of printed bridges
    bool Option2 = false;              ///< "Circle"; otherwise "Square"
    bool Check1 = true;                ///< show the lines between cells

    /// The back colour of `Combo1`: the entry that the brightness buttons change.
    Colour AdjustedColour() const { return draft.SchemeColours[static_cast<std::size_t>(draft.AdjustIndex)]; }
};

/// The options as they would be if the window's settings were applied now, and so what a preview shows.
Options AppliedOptions(const Game& game, const OptionsForm& form);

/// The colours that the options window itself wears: those of the chosen scheme.
WindowColours FormColours(const Game& game, const OptionsForm& form);

/// What of a board in these colours can hardly be seen, in a sentence for the player; "" when all can.
std::string HardToSee(const Options& options);

/// The widest pen for printed bridges, in pixels at 300 dpi.
inline constexpr int kWidestPrintLine = 50;

/// Fills the controls from the current options.
OptionsForm OpenOptions(const Game& game);

/// Another scheme was chosen: the window shows it, and the board colours that it suggests if they can be read.
void Combo1_Click(Game& game, OptionsForm& form, const std::string& name);

/// The brightness buttons: index 2 lighter, 1 darker.
void cmdadjust4_Click(OptionsForm& form, int index);

/// The four colour buttons: each copies the picker's colour into its swatch. False, with nothing changed, when no
/// colour was picked yet.
bool cmdgridcol_Click(OptionsForm& form, std::optional<Colour> picked);
bool cmdchaincol_Click(OptionsForm& form, std::optional<Colour> picked);
bool cmdgivenfg_Click(OptionsForm& form, std::optional<Colour> picked);
bool cmdnodecol_Click(OptionsForm& form, std::optional<Colour> picked);

/// True when the chosen scheme is the player's own, so that its parts can be changed and it can be deleted.
bool IsOwnScheme(const OptionsForm& form);

/// Makes a scheme called `name` of the colours that the window shows, and chooses it. Returns why it cannot be called
/// so, in a sentence for the player, with nothing changed; "" when it was made. It is written when it is applied.
std::string AddScheme(const Game& game, OptionsForm& form, const std::string& name);

/// Takes the chosen scheme of the player's own away and chooses "xp". It leaves the file when that is applied.
void DeleteScheme(Game& game, OptionsForm& form);

/// Gives an entry of the chosen scheme, which is the player's own, another colour.
void SetSchemePart(OptionsForm& form, std::size_t entry, Colour colour);

/// Gives one of the form's four swatches of board colours another colour. A scheme of the player's own keeps it, too.
void SetBoardColour(OptionsForm& form, Colour OptionsForm::*swatch, Colour colour);

/// The apply button: writes schemes that were edited, makes what the window shows the program's options and redraws the
/// board; the window closes then. A line width that is no number of at least 1 leaves the old one.
///
/// False when the schemes could not be written: the player was told, and nothing has changed.
bool command1_Click(Game& game, const OptionsForm& form);

/// Shows the thin lines or hides them, as the box in the options window does. While a job runs nothing
/// happens.
void mnulines_Click(Game& game);

/// Reads the options that "tide.cfg" has no room for.
void ReadChoices(Game& game);

/// "Apply default options and exit", in the way of the apply button.
bool reset_Click(Game& game, OptionsForm& form);

}  // namespace tidewalk
