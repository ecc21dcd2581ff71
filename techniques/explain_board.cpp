// SPDX-License-Identifier: MIT
#include "techniques/explain_board.h"

#include "board/show_board.h"
#include "game/job.h"
#include "techniques/show_guide.h"

namespace tidewalk {

namespace {

constexpr const char* kNoStepForAll =
    "This puzzle has several solutions. No further step was found that all of them share.";

/// The bridges that lie before a step.
BridgeTable PositionBefore(const Archipelago& board, const std::vector<Step>& steps, int step) {
    BridgeTable position;
    for (int i = 0; i < step; ++i) {
        for (const MarkedPair& pair : GuideTo(board, steps[static_cast<std::size_t>(i)].deduction, true).pairs) {
            if (pair.mark == PairMark::Lay) position.Set(pair.a, pair.b, pair.bridges);
        }
    }
    return position;
}

/// What is told after the last step.
std::string EndText(const Archipelago& board, const BridgeTable& position) {
    for (const Isle& isle : board.isles) {
        if (position.CountAt(isle.id) != isle.number) return kNoStepForAll;
    }
    return "The puzzle is solved.";
}

}  // namespace

void mnuexplain_Click(Game& game) {
    if (RefuseWhileBusy(game) || RefuseWithoutPuzzle(game)) return;
    ForgetStatus(game);
    EndGuidance(game);
    const Archipelago board(game.board.puzzle);
    const auto solutions = SolutionsAtOnce(board);
    if (!solutions) return ShowGuide(game, {}, "Finding the solutions of this puzzle would take too long.");
    if (solutions->empty()) return ShowGuide(game, {}, "This puzzle has no solution.");
    const SpanBridges* const only = solutions->size() == 1 ? &solutions->front() : nullptr;
    game.guidance.steps = ExplainPath(board, only, WithoutEnd);
    ++game.guidance.revision;
    if (game.guidance.steps.empty()) return ShowGuide(game, {}, kNoStepForAll);
    ShowExplainedStep(game, 0);
}

void ShowExplainedStep(Game& game, int step) {
    const std::vector<Step>& steps = game.guidance.steps;
    const int count = static_cast<int>(steps.size());
    if (game.job.BusyFlag() || steps.empty() || step < 0 || step > count) return;
    const Archipelago board(game.board.puzzle);
    game.guidance.step = step;
    Guide guide;
    if (step < count) guide = GuideTo(board, steps[static_cast<std::size_t>(step)].deduction, true);
    guide.position = PositionBefore(board, steps, step);
    const std::string text =
        step < count ? steps[static_cast<std::size_t>(step)].text : EndText(board, *guide.position);
    ShowGuide(game, guide, text);
}

void EndExplanation(Game& game) {
    if (!game.job.BusyFlag()) EndGuidance(game);
}

}  // namespace tidewalk
