// SPDX-License-Identifier: MIT
#include "generator/puzzle_order.h"

#include "generator/ordered_layout.h"
#include "solver/count_solutions.h"
#include "solver/valid_solution.h"
#include "techniques/grade.h"

namespace tidewalk {

namespace {

/// Whether the puzzle and its bridges are of this character.
bool IsOfCharacter(const Character& character, const Puzzle& solved) {
    int pairs = 0;
    int doubles = 0;
    for (const Link& link : solved.LinkList) {
        pairs += link.Bridges() > 0 ? 1 : 0;
        doubles += link.Bridges() == kMostBridges ? 1 : 0;
    }
    const int islands = solved.IslandCount();
    const int loops = pairs - (islands - 1);
    return (!character.density || PartsOf(*character.density, solved.CellCount()).Hold(islands)) &&
           (!character.loops || character.loops->Hold(loops)) &&
           (!character.doubles || PartsOf(*character.doubles, pairs).Hold(doubles));
}

}  // namespace

bool IsAsOrdered(const PuzzleOrder& order, const Puzzle& solved, const MayGoOn& mayGoOn) {
    if (!IsValidSolution(solved) || solved.IslandCount() < FewestIslands(solved.Size())) return false;
    if (!IsOfCharacter(order.character, solved)) return false;
    if (!order.oneSolution && !order.grade) return true;
    const Archipelago board(solved);
    const auto found = FindSolutions(board, 2, mayGoOn);
    if (!found || found->size() != 1) return false;
    if (!order.grade) return true;
    const std::optional<int> score = GradeBoard(board, found->front(), mayGoOn);
    return score && GradeOf(*score) == *order.grade;
}

Candidate CreateCandidate(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random,
                          const MayGoOn& mayGoOn) {
    Candidate candidate{NeedsOrderedLayout(order) ? CreateOrdered(board, size, order, random, mayGoOn)
                                                  : CreatePuzzle(board, size, random, mayGoOn)};
    candidate.fits = candidate.created.solved && mayGoOn() && IsAsOrdered(order, candidate.created.puzzle, mayGoOn);
    return candidate;
}

}  // namespace tidewalk
