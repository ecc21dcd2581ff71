// SPDX-License-Identifier: MIT
#include <algorithm>

#include "fuzz/targets.h"
#include "options/options_form.h"
#include "program/form_load.h"
#include "support/test_game.h"

namespace tidewalk::fuzz {

void ReadColourSchemes(std::string_view bytes) {
    constexpr std::size_t kMost = 4;
    test::TestGame game;
    game.world.AnswerAll(kOk);
    game.folder.Write("all.col", std::string(bytes));
    const StartRequest request{game.AppFolder, game.folder.Write("puzzle.tdw", " 1, 3, 1;D;1-1,\r\n"), 1};
    Demand(!game.Run(Form_Load, request).has_value(), "the start fails");
    // The options window with one scheme after another, made darker and lighter, and taken.
    std::vector<std::string> names = game.options.schemeNames;
    names.resize(std::min(names.size(), kMost));
    names.emplace_back("default");
    for (const std::string& name : names) {
        OptionsForm form = OpenOptions(game);
        game.Run(Combo1_Click, form, name);
        for (const int index : {1, 1, 2})
            cmdadjust4_Click(form, index);
        FormColours(game, form);
        game.Run(command1_Click, form);
    }
    Demand(!testing::Test::HasFailure(), "the game is not whole");
}

}  // namespace tidewalk::fuzz
