// SPDX-License-Identifier: MIT
// The readers of the game.
#include <algorithm>

#include "board/board_commands.h"
#include "board/kept_play_text.h"
#include "fuzz/targets.h"
#include "model/configuration.h"
#include "options/options_form.h"
#include "program/form_load.h"
#include "support/board_text.h"
#include "support/invariants.h"
#include "support/test_game.h"

namespace tidewalk::fuzz {

void ReadConfiguration(std::string_view bytes) {
    test::TestGame game;
    game.world.AnswerAll(kOk);
    game.folder.Write("tide.cfg", std::string(bytes));
    std::string written;
    for (const bool again : {false, true}) {
        game.Run(ReadcfgFile);
        const int cellSize = game.board.layout.CellSize;
        Demand(cellSize >= kSmallestCell && cellSize <= kLargestCell, "a cell size out of range");
        Demand(game.collection.PuzzleNumber >= 1, "no puzzle has this number");
        Demand(game.Run(SavecfgFile), "the configuration is not written");
        Demand(!again || game.folder.Read("tide.cfg") == written, "what is read again is something else");
        written = game.folder.Read("tide.cfg");
    }
    Demand(!testing::Test::HasFailure(), "the game is not whole");
}

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

/// What a store gives back may be anything: it is a history that can be written again, or nothing, and what comes onto
/// the board can be played on.
void ReadPlay(std::string_view bytes) {
    const auto history = ParseHistory(bytes);
    if (!history) return;
    const std::string text = HistoryText(*history);
    Demand(ParseHistory(text) == history, "a history does not come back");
    test::TestGame game{{test::kSmallPuzzle}};
    game.Load(1);
    game.world.Keep(game.board.puzzle, *history, false);
    game.Load(1);
    Demand(test::CheckInvariants(game).empty(), "a board that cannot be played on");
    for (int moment = game.board.history.Count(); moment >= 0; --moment)
        game.Run(GoToMoment, moment);
}

}  // namespace tidewalk::fuzz
