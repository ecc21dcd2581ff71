// SPDX-License-Identifier: MIT
#include <algorithm>

#include "fuzz/scratch.h"
#include "fuzz/targets.h"
#include "model/convert_layout.h"
#include "model/load_puzzle.h"

namespace tidewalk::fuzz {

void ReadOldLayout(std::string_view bytes) {
    constexpr int kMost = 3;
    Scratch scratch;
    Game& game = scratch.game();
    const std::string from = scratch.Write("old.txt", bytes);
    const std::string to = scratch.Path("old-newformat.txt");
    ConvertLayout(game, from, to);
    // A puzzle of the older layout takes four lines, and none of them is lost or told twice.
    const int lines = CountLines(game, from);
    const int records = CountLines(game, to);
    Demand(records <= lines / 2, "more puzzles than there can be");
    for (int number = 1; number <= std::min(records, kMost); ++number) {
        LoadPuzzle(game, to, number);
        DemandWhole(game);
        game.files.CloseAll();
    }
    game.files.Open(1, from, FileMode::Input);
    int number = 0;
    int failed = 0;
    FindMarkedLine(game, static_cast<int>(bytes.size() % 3), number, failed);
    Demand(failed == 0 || failed == -1, "an unknown result");
    game.files.CloseAll();
}

}  // namespace tidewalk::fuzz
