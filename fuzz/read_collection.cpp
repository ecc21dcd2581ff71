// SPDX-License-Identifier: MIT
#include <algorithm>

#include "board/check_bridges.h"
#include "fuzz/scratch.h"
#include "fuzz/targets.h"
#include "model/load_puzzle.h"
#include "model/write_puzzle_record.h"
#include "solver/valid_solution.h"

namespace tidewalk::fuzz {

namespace {

/// What is loaded can be drawn and judged, and its record gives the same puzzle again.
void UseLoaded(Scratch& scratch) {
    Game& game = scratch.game();
    ShowSolution(game);
    const bool valid = IsValidSolution(game);
    CheckBridgeCounts(game);
    DemandWhole(game);
    const auto given = game.GivenGrid;
    WritePuzzleRecord(game, scratch.Path("again.tdw"), 0);
    Demand(LoadPuzzle(game, scratch.Path("again.tdw"), 1) == 0, "a record of our own is not read");
    // Bridges over islands have no form in a record, so only a solution has to come back as it was.
    if (!valid) return;
    Demand(game.GivenGrid == given, "the numbers come back as others");
    Demand(IsValidSolution(game), "a solution does not come back");
}

}  // namespace

void ReadCollection(std::string_view bytes) {
    constexpr int kMost = 2;
    Scratch scratch;
    Game& game = scratch.game();
    const std::string path = scratch.Write("collection.tdw", bytes);
    const int count = CountLines(game, path);
    const auto beside = std::make_unique<Puzzle>();
    for (int number = 0; number <= std::min(count, kMost) + 1; ++number) {
        const bool read = ReadPuzzle(game.files, path, number, *beside);
        game.files.CloseAll();
        const bool loaded = LoadPuzzle(game, path, number) == 0;
        Demand(read == loaded, "the two readers do not agree");
        Demand(!read || (number >= 1 && number <= count), "a puzzle comes from no line");
        DemandWhole(game);
        if (!loaded) continue;
        Demand(beside->GivenGrid == game.GivenGrid, "the two readers read other numbers");
        UseLoaded(scratch);
    }
}

}  // namespace tidewalk::fuzz
