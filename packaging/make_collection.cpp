// SPDX-License-Identifier: MIT
// Makes the collection that ships with the program: puzzles of all sizes, grades and characters with exactly one
// solution each.
//
// Usage: tidewalk_make_collection FILE [SEED]. The same seed gives the same file on every machine.
//
// The grades follow one another, and within each the sizes. Who goes from the first puzzle to the last learns one way
// to conclude at a time, on a small board first and then on ever larger ones; no board is harder than what came before
// it has prepared for. Ordered by size first, the very hard small boards would stand before the very easy large ones.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "generator/character_choices.h"
#include "generator/puzzle_order.h"
#include "model/line_reader.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"
#include "solver/solve_puzzle.h"
#include "techniques/explain.h"
#include "techniques/grade.h"

namespace tidewalk {
namespace {

constexpr std::uint64_t kSeed = 20240607;

/// What a player may have come to know by then, in this order.
constexpr std::array<Grade, 4> kGrades{Grade::VEasy, Grade::Easy, Grade::Hard, Grade::VHard};

/// A size, and how many puzzles of it are made of each grade and character.
struct Wanted {
    BoardSize size;
    int count;
};

/// In the order of the collection: by the longer side, up to 9, 13, 18 and 25 cells, and within these by area.
constexpr std::array<Wanted, 23> kSizes{{
    {{7, 7}, 2},   {{7, 9}, 1},   {{8, 8}, 2},   {{9, 8}, 1},   {{9, 9}, 1},  //
    {{10, 7}, 1},  {{10, 10}, 1}, {{9, 12}, 1},  {{11, 11}, 1}, {{12, 12}, 1}, {{13, 13}, 1},
    {{11, 16}, 1}, {{14, 14}, 1}, {{18, 12}, 1}, {{15, 15}, 1}, {{16, 16}, 1}, {{18, 18}, 1},
    {{7, 25}, 1},  {{25, 10}, 1}, {{20, 20}, 1}, {{22, 22}, 1}, {{20, 25}, 1}, {{25, 25}, 1},
}};

struct Made {
    std::string record;
    int score;
    int islands;

    /// Asks less of the player.
    bool operator<(const Made& other) const {
        return std::tie(score, islands, record) < std::tie(other.score, other.islands, other.record);
    }
};

Character PublishedCharacter(BoardSize size) {
    const auto& all = CharacterChoices();
    const auto isIt = [](const CharacterChoice& choice) { return choice.key == "published"; };
    return std::find_if(all.begin(), all.end(), isIt)->of(size);
}

bool IsLikePublished(const Puzzle& solved) {
    const PuzzleOrder order{false, {}, PublishedCharacter(solved.Size())};
    return IsAsOrdered(order, solved, WithoutEnd);
}

/// The score of a puzzle whose whole path the techniques tell; nothing where somewhere only the search helps.
std::optional<int> ScoreWithoutTrial(const Puzzle& puzzle) {
    Efforts efforts;
    const bool told = WalkPath(Archipelago(puzzle), nullptr, WithoutEnd,
                               [&](const Position&, const Deduction& deduction) { efforts.Add(deduction); });
    return told ? std::optional(ScoreOf(efforts)) : std::nullopt;
}

/// Creates candidates until one is as ordered, has a path without trial and is solved in the blink of an eye. One that
/// was to be as it grows and came out like published puzzles is passed over. The record holds the solution as the
/// solver laid it.
Made MakeOne(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random) {
    constexpr int kMostTrials = 1000;
    for (;;) {
        const Candidate candidate = CreateCandidate(board, size, order, random, WithoutEnd);
        if (!candidate.fits) continue;
        const Puzzle& puzzle = candidate.created.puzzle;
        if (order.character == Character() && IsLikePublished(puzzle)) continue;
        const auto score = ScoreWithoutTrial(puzzle);
        board.Reset(puzzle);
        if (!score || !SolvePuzzle(board, {.mostTrials = kMostTrials}, WithoutEnd).Solved()) continue;
        return {PuzzleRecord(PuzzleOf(board)), *score, puzzle.IslandCount()};
    }
}

/// The one of several that asks most of the player: what is only of the right grade mostly lies at its lower end.
Made MakeRichest(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random) {
    constexpr int kChoices = 3;
    Made richest = MakeOne(board, size, order, random);
    for (int choice = 1; choice < kChoices; ++choice)
        richest = std::max(richest, MakeOne(board, size, order, random));
    return richest;
}

/// The puzzles of one grade and size, all different.
std::set<Made> MakeGroup(SolverBoard& board, const Wanted& wanted, Grade grade, RandomSource& random) {
    std::set<Made> group;
    for (const Character& character : {Character(), PublishedCharacter(wanted.size)}) {
        const PuzzleOrder order{true, grade, character};
        for (int made = 0; made < wanted.count;)
            made += group.insert(MakeRichest(board, wanted.size, order, random)).second ? 1 : 0;
    }
    return group;
}

std::vector<Made> MakeAll(std::uint64_t seed) {
    const auto board = std::make_unique<SolverBoard>();
    RandomSource random(seed);
    std::vector<Made> puzzles;
    for (const Grade grade : kGrades) {
        for (const Wanted& wanted : kSizes) {
            const auto group = MakeGroup(*board, wanted, grade, random);
            puzzles.insert(puzzles.end(), group.begin(), group.end());
        }
    }
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
