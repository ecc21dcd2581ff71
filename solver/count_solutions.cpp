// SPDX-License-Identifier: MIT
#include "solver/count_solutions.h"

#include "solver/solution_search.h"

namespace tidewalk {

std::optional<std::vector<SpanBridges>> FindSolutions(const Archipelago& board, int limit, const MayGoOn& mayGoOn) {
    if (board.isles.empty()) return std::vector<SpanBridges>();
    return SolutionSearch(board).Run(limit, mayGoOn);
}

std::optional<int> CountSolutionsWhile(const Puzzle& puzzle, int limit, const MayGoOn& mayGoOn) {
    const auto found = FindSolutions(Archipelago(puzzle), limit, mayGoOn);
    if (!found) return std::nullopt;
    return static_cast<int>(found->size());
}

std::optional<int> CountSolutions(const Puzzle& puzzle, int limit, std::int64_t steps) {
    return CountSolutionsWhile(puzzle, limit, [steps]() mutable { return steps-- > 0; });
}

}  // namespace tidewalk
