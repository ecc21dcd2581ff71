// SPDX-License-Identifier: MIT
#include "generator/character_choices.h"

namespace tidewalk {

namespace {

Character AsItGrows(BoardSize) {
    return {};
}

/// Puzzles in print hold an island on every third cell, and not three in ten of their bridges are double.
Character Published(BoardSize) {
    return {Figures{29, 36}, Figures{.least = 1}, Figures{20, 38}};
}

Character Crowded(BoardSize size) {
    constexpr int kCellsPerLoop = 20;
    return {Figures{.least = 29}, Figures{.least = size.rows * size.cols / kCellsPerLoop}, {}};
}

Character MostlySingle(BoardSize) {
    return {{}, {}, Figures{.most = 20}};
}

}  // namespace

const std::vector<CharacterChoice>& CharacterChoices() {
    static const std::vector<CharacterChoice> all{
        {"grown", "As they grow", "Wide and branching like a tree, with hardly a loop", AsItGrows},
        {"published", "Like published puzzles", "An island on every third cell, loops, fewer double bridges",
         Published},
        {"loops", "Crowded with loops", "Many islands, and many ways round", Crowded},
        {"singles", "Few double bridges", "At most one bridged pair in five has two bridges", MostlySingle}};
    return all;
}

}  // namespace tidewalk
