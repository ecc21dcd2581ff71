// SPDX-License-Identifier: MIT
// Makes the collection that ships with the program: puzzles of all sizes with exactly one solution each.
//
// Usage: tidewalk_make_collection FILE [SEED]. The same seed gives the same file on every machine.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "generator/create_puzzle.h"
#include "model/line_reader.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"
#include "solver/count_solutions.h"
#include "solver/valid_solution.h"

namespace tidewalk {
namespace {

constexpr std::uint64_t kSeed = 20240607;

/// A size, and how many puzzles of it are made.
struct Wanted {
    BoardSize size;
    int count;
};

constexpr std::array<Wanted, 26> kSizes{{
    {{7, 7}, 12},  {{8, 8}, 10},  {{7, 10}, 5},  {{9, 9}, 10},  {{10, 7}, 4},  {{10, 10}, 9}, {{9, 13}, 4},
    {{11, 11}, 6}, {{12, 12}, 8}, {{13, 9}, 4},  {{12, 16}, 4}, {{13, 13}, 4}, {{14, 14}, 5}, {{15, 15}, 7},
    {{16, 11}, 3}, {{16, 16}, 4}, {{15, 20}, 4}, {{17, 17}, 3}, {{18, 18}, 5}, {{20, 14}, 4}, {{20, 20}, 6},
    {{7, 25}, 3},  {{25, 10}, 3}, {{22, 22}, 5}, {{20, 25}, 4}, {{25, 25}, 8},
}};

struct Made {
    std::string record;
    int cells;
    int trials;  ///< the moves that the solver had to try

    /// The larger the board and the more has to be tried, the harder.
    int Difficulty() const { return cells * (1 + trials); }
};

/// Creates puzzles until one has exactly one solution.
Made MakeOne(SolverBoard& board, BoardSize size, RandomSource& random) {
    for (;;) {
        const CreatedPuzzle created = CreatePuzzle(board, size, random, WithoutEnd);
        if (!created.solved || !IsValidSolution(created.puzzle)) continue;
        if (CountSolutions(created.puzzle, 2) != 1) continue;
        return {PuzzleRecord(created.puzzle), created.puzzle.CellCount(), created.trials};
    }
}

std::vector<Made> MakeAll(std::uint64_t seed) {
    const auto board = std::make_unique<SolverBoard>();
    RandomSource random(seed);
    std::vector<Made> puzzles;
    std::set<std::string> seen;
    for (const Wanted& wanted : kSizes) {
        for (int made = 0; made < wanted.count;) {
            Made puzzle = MakeOne(*board, wanted.size, random);
            if (!seen.insert(puzzle.record).second) continue;
            puzzles.push_back(std::move(puzzle));
            ++made;
        }
    }
    std::stable_sort(puzzles.begin(), puzzles.end(),
                     [](const Made& a, const Made& b) { return a.Difficulty() < b.Difficulty(); });
    return puzzles;
}

int Main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: tidewalk_make_collection FILE [SEED]\n", stderr);
        return 2;
    }
    try {
        const auto puzzles = MakeAll(argc == 3 ? std::strtoull(argv[2], nullptr, 10) : kSeed);
        ReplaceFile(argv[1], [&](std::ostream& file) {
            for (const Made& puzzle : puzzles)
                file << puzzle.record << kLineEnd;
        });
        std::printf("%zu puzzles written to %s\n", puzzles.size(), argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}

}  // namespace
}  // namespace tidewalk

int main(int argc, char** argv) {
    return tidewalk::Main(argc, argv);
}
