// SPDX-License-Identifier: MIT
#include "solver/count_solutions.h"

#include "solver/solution_search.h"

namespace tidewalk {

std::optional<std::vector<SpanBridges>> FindSolutions(const Archipelago& board, int limit, const MayGoOn& mayGoOn) {
    if (board.isles.empty()) return std::vector<SpanBridges>();
    return SolutionSearch(board).Run(limit, mayGoOn);
}

Puzzle WithBridges(const Puzzle& puzzle, const Archipelago& board, const SpanBridges& bridges) {
    Puzzle solved = WithoutLinks(puzzle);
    for (int span = 0; span < board.SpanCount(); ++span) {
        const int laid = bridges[static_cast<std::size_t>(span)];
        const auto [a, b] = board.SpanAt(span).ends;
        if (laid > 0) solved.LinkList.push_back(MakeLink(board.IsleAt(a).id, board.IsleAt(b).id, kMostBridges - laid));
    }
    return solved;
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
