// SPDX-License-Identifier: MIT
#include "fuzz/scratch.h"
#include "fuzz/targets.h"
#include "model/number_grid.h"
#include "model/read_grid_file.h"

namespace tidewalk::fuzz {

void ReadGrid(std::string_view bytes) {
    constexpr int kMost = 3;
    Scratch scratch;
    Game& game = scratch.game();
    const std::string path = scratch.Write("grid.txt", bytes);
    for (int number = 0; number <= kMost; ++number) {
        const bool taken = ReadGridFile(game, path, number) == 0;
        DemandWhole(game);
        GridText text;
        const bool read = ReadGridText(game.files, path, number, text) == GridResult::Read;
        Demand(read == taken, "the two readers do not agree");
        if (!read) continue;
        NumberGrid editor;
        editor.Take(text);
        // What the editor holds is a grid that the reader takes without a change.
        const std::string again = scratch.Write("again.grd", editor.Text());
        NumberGrid second;
        Demand(ReadGridText(game.files, again, 1, text) == GridResult::Read, "the editor's own file is not read");
        second.Take(text);
        Demand(second.Text() == editor.Text(), "the editor's file comes back as another");
    }
}

}  // namespace tidewalk::fuzz
