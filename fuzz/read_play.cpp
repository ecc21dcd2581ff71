// SPDX-License-Identifier: MIT
#include "board/board_commands.h"
#include "board/kept_play_text.h"
#include "fuzz/targets.h"
#include "support/board_text.h"
#include "support/invariants.h"
#include "support/test_game.h"

namespace tidewalk::fuzz {

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
