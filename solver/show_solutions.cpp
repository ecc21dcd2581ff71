// SPDX-License-Identifier: MIT
#include "solver/show_solutions.h"

#include <array>
#include <optional>
#include <utility>

#include "game/job.h"
#include "model/numbers.h"
#include "solver/count_solutions.h"

namespace tidewalk {

namespace {

constexpr const char* kNotKnown = "The solutions are not known: the search was stopped";

/// "Row 1, column 3 to row 1, column 7: one bridge in the first, two in the second".
std::string DifferenceText(CellPlace a, CellPlace b, int first, int second) {
    constexpr std::array<const char*, kMostBridges + 1> kCounts{"none", "one", "two"};
    constexpr std::array<const char*, kMostBridges + 1> kBridges{"no bridge", "one bridge", "two bridges"};
    return "Row " + NumText(a.row) + ", column " + NumText(a.col) + " to row " + NumText(b.row) + ", column " +
           NumText(b.col) + ": " + kBridges.at(static_cast<std::size_t>(first)) + " in the first, " +
           kCounts.at(static_cast<std::size_t>(second)) + " in the second";
}

std::vector<Difference> DifferencesOf(const Archipelago& board, const SpanBridges& first, const SpanBridges& second) {
    std::vector<Difference> found;
    for (int span = 0; span < board.SpanCount(); ++span) {
        const auto at = static_cast<std::size_t>(span);
        if (first[at] == second[at]) continue;
        const Isle& a = board.IsleAt(board.SpanAt(span).ends[0]);
        const Isle& b = board.IsleAt(board.SpanAt(span).ends[1]);
        found.push_back({a.id, b.id, DifferenceText(a.place, b.place, first[at], second[at])});
    }
    return found;
}

/// Up to two solutions; nothing when the job was stopped before they were known, or another puzzle was loaded.
std::optional<std::vector<SpanBridges>> FindInJob(Game& game, const Archipelago& board) {
    const BusyPointer pointer(game);
    const Job job(game, "The search for solutions");
    game.window.SetText(WindowText::Status, "Looking for solutions ...");
    LetEventsThrough(game);
    auto found = FindSolutions(board, 2, Watched(game));
    if (game.job.Superseded() || game.job.Ending()) found.reset();
    if (!game.job.Ending()) game.window.SetText(WindowText::Status, found || game.job.Superseded() ? "" : kNotKnown);
    return found;
}

/// What is to be shown of the only solution, or of two.
FoundSolutions SolutionsToShow(const Puzzle& puzzle, const Archipelago& board,
                               const std::vector<SpanBridges>& solutions) {
    FoundSolutions shown{"This puzzle has exactly one solution.", {}, {}};
    for (const SpanBridges& bridges : solutions)
        shown.solutions.push_back(WithBridges(puzzle, board, bridges));
    if (solutions.size() > 1) {
        shown.caption = "This puzzle has several solutions. Two of them:";
        shown.differences = DifferencesOf(board, solutions[0], solutions[1]);
    }
    return shown;
}

}  // namespace

void mnusolutions_Click(Game& game) {
    if (RefuseWhileBusy(game) || RefuseWithoutPuzzle(game)) return;
    const Puzzle puzzle = game.board.puzzle;
    const Archipelago board(puzzle);
    const auto found = FindInJob(game, board);
    if (!found) return;
    if (found->empty()) {
        game.prompts.Show("No bridges solve this puzzle.", "vbinformation+vbok");
    } else {
        game.questions.ShowSolutions(SolutionsToShow(puzzle, board, *found));
    }
}

}  // namespace tidewalk
