// SPDX-License-Identifier: MIT
// Created puzzles to measure with.
#pragma once

#include <cstdint>
#include <vector>

#include "generator/create_puzzle.h"

namespace tidewalk::bench {

/// Forty created puzzles of this many rows and columns that are `wanted`; the same in every run.
template <class Wanted>
std::vector<Puzzle> MakePuzzles(int side, Wanted wanted) {
    constexpr std::size_t kPuzzles = 40;
    std::vector<Puzzle> puzzles;
    RandomSource random(static_cast<std::uint64_t>(side));
    SolverBoard board;
    while (puzzles.size() < kPuzzles) {
        const CreatedPuzzle created = CreatePuzzle(board, {side, side}, random, WithoutEnd);
        if (created.solved && wanted(created)) puzzles.push_back(created.puzzle);
    }
    return puzzles;
}

}  // namespace tidewalk::bench
