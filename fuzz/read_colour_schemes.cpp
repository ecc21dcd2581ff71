// SPDX-License-Identifier: MIT
#include <algorithm>

#include "fuzz/scratch.h"
#include "fuzz/targets.h"
#include "options/colour_scheme.h"
#include "options/options_form.h"
#include "program/form_load.h"

namespace tidewalk::fuzz {

namespace {

void DemandColours(const Options& options) {
    for (const Colour colour : options.SchemeColours)
        Demand(colour <= kWhite, "a colour out of range");
}

/// The options window with one scheme after another, made darker and lighter, and taken.
void TryScheme(Game& game, const std::string& name) {
    OptionsForm form = OpenOptions(game);
    Combo1_Click(game, form, name);
    for (const int index : {1, 1, 2})
        cmdadjust4_Click(form, index);
    DemandColours(form.draft);
    FormColours(game, form);
    command1_Click(game, form);
    DemandColours(game);
    ColoursOfWindows(game, game.window);
    DemandWhole(game);
}

}  // namespace

void ReadColourSchemes(std::string_view bytes) {
    constexpr std::size_t kMost = 4;
    Scratch scratch;
    Game& game = scratch.game();
    scratch.Write("all.col", bytes);
    StartRequest request;
    request.appFolder = scratch.Path("");
    request.collection = scratch.Write("puzzle.tdw", " 1, 3, 1;D;1-1,\r\n");
    Demand(!Form_Load(game, request).has_value(), "the start fails");
    DemandWhole(game);
    DemandColours(game);
    const auto offered = game.schemeNames;
    for (std::size_t i = 0; i < std::min(offered.size(), kMost); ++i)
        TryScheme(game, offered[i] + ".col");
    TryScheme(game, "default.col");
}

}  // namespace tidewalk::fuzz
