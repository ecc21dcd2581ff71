// SPDX-License-Identifier: MIT
// What a puzzle that is to be made should be like.
#pragma once

#include <optional>

#include "generator/character.h"
#include "generator/create_puzzle.h"
#include "solver/difficulty.h"

namespace tidewalk {

/// What is asked of a new puzzle.
struct PuzzleOrder {
    bool oneSolution = true;
    std::optional<Grade> grade;  ///< only a puzzle with one solution has one, so it is asked for, too
    Character character;

    bool operator==(const PuzzleOrder&) const = default;
};

/// True when the puzzle, which holds its solution, is what was ordered and has no fewer islands than `FewestIslands`
/// says, which holds for every order. False too when `mayGoOn` said no before that was known.
bool IsAsOrdered(const PuzzleOrder& order, const Puzzle& solved, const MayGoOn& mayGoOn);

/// A puzzle that was made to see whether it is what was ordered.
struct Candidate {
    CreatedPuzzle created;
    bool fits = false;  ///< it is solved and as ordered
};

/// After so many candidates nobody should look for a further one.
inline constexpr int kMostCandidates = 10000;

/// Makes one candidate of this size, each side 7..25, on `board`, whatever that held before. It depends on the size,
/// the order and the draws alone. When `mayGoOn` says no, it does not fit.
///
/// What simply grows is judged as it is; for a character, or the hardest grade, a layout is changed until it is what
/// was ordered, with a bound on the changes. Of an order that `CanBeOrdered` says no to none ever fits.
Candidate CreateCandidate(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random,
                          const MayGoOn& mayGoOn);

}  // namespace tidewalk
