// SPDX-License-Identifier: MIT
#include "fuzz/targets.h"
#include "model/configuration.h"
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

}  // namespace tidewalk::fuzz
