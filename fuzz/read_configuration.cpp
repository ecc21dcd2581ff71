// SPDX-License-Identifier: MIT
#include "fuzz/scratch.h"
#include "fuzz/targets.h"
#include "model/config_file.h"

namespace tidewalk::fuzz {

void ReadConfiguration(std::string_view bytes) {
    Scratch scratch;
    Game& game = scratch.game();
    scratch.Write("tide.cfg", bytes);
    ReadcfgFile(game);
    constexpr int kSmallest = 200;
    constexpr int kLargest = 700;
    Demand(game.CellSize >= kSmallest && game.CellSize <= kLargest, "a cell size out of range");
    Demand(game.PuzzleNumber >= 1, "no puzzle has this number");
    Demand(game.NodeColour <= kWhite && game.GivenColour <= kWhite && game.ChainColour <= kWhite &&
               game.GridColour <= kWhite,
           "a colour out of range");
    Demand(SavecfgFile(game) == 0, "the configuration is not written");
    const std::string written = scratch.Read("tide.cfg");
    ReadcfgFile(game);
    Demand(SavecfgFile(game) == 0 && scratch.Read("tide.cfg") == written, "what is read again is something else");
}

}  // namespace tidewalk::fuzz
