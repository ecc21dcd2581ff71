// SPDX-License-Identifier: MIT
#include "fuzz/targets.h"
#include "model/plain_grid.h"
#include "support/temp_folder.h"

namespace tidewalk::fuzz {

void ReadGrid(std::string_view bytes) {
    constexpr int kMost = 3;
    const test::TempFolder folder;
    const std::string path = folder.Write("grid.txt", std::string(bytes));
    for (int number = 0; number <= kMost; ++number) {
        Puzzle puzzle;
        if (ReadGridFrom(path, number, puzzle) != GridResult::Read) continue;
        Demand(number >= 1 && puzzle.CellCount() >= 1 && puzzle.LinkCount() == 0, "a grid out of nothing");
        // What is written is a grid that the reader takes without a change.
        Puzzle again;
        const std::string written = folder.Write("again.grd", MarkedGrid(puzzle));
        Demand(ReadGridFrom(written, 1, again) == GridResult::Read, "a grid of our own is not read");
        Demand(again == puzzle, "a grid of our own comes back as another");
    }
}

}  // namespace tidewalk::fuzz
