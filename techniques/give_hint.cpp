// SPDX-License-Identifier: MIT
#include "techniques/give_hint.h"

#include "board/after_move.h"
#include "board/place_bridge.h"
#include "board/show_board.h"
#include "game/job.h"
#include "techniques/sentences.h"
#include "techniques/show_guide.h"

namespace tidewalk {

namespace {

constexpr int kReason = 2;  ///< the press that tells why

std::vector<PlayedPair> PlayedOn(const Board& board) {
    std::vector<PlayedPair> played;
    for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders()) {
        if (a < b) played.push_back({a, b, bridges, false});
    }
    for (const auto& [a, b] : board.Marks.All())
        played.push_back({a, b, 0, true});
    return played;
}

/// Whether the hint of the last press still stands on the board.
bool GoesOn(const Game& game) {
    return game.guidance.presses > 0 && game.guidance.textRevision == game.board.history.Revision();
}

void BeginHint(Game& game, const Archipelago& board) {
    EndGuidance(game);
    int steps = 0;
    constexpr int kMostSteps = 5000;
    game.guidance.hint = FindHint(board, SolutionsAtOnce(board), PlayedOn(game.board), HintStep::WithBridges,
                                  [&steps] { return ++steps <= kMostSteps; });
}

/// The bridges of the hint, laid as the player would.
void LayBridges(Game& game, const Archipelago& board, const Deduction& deduction) {
    for (const MarkedPair& pair : GuideTo(board, deduction, true).pairs) {
        if (pair.mark == PairMark::Lay) MakeMove(game.board, pair.a, pair.b, pair.bridges);
    }
    AfterMove(game);
    EndGuidance(game);
    ShowGuide(game, {}, "The bridges are laid. Undo takes them back, move by move.");
}

void TellStep(Game& game, const Archipelago& board) {
    const std::vector<Step>& steps = game.guidance.hint.steps;
    const Deduction& last = steps.back().deduction;
    if (game.guidance.presses < kReason) {
        const std::string name(TechniqueName(last.technique));
        return ShowGuide(game, GuideTo(board, last, false),
                         name + ": look at the framed islands.\n\nPress Hint again to be told why.");
    }
    if (game.guidance.presses > kReason) return LayBridges(game, board, last);
    std::string text;
    Guide guide = GuideTo(board, last, true);
    for (const Step& step : steps) {
        text += step.text + "\n\n";
        for (const MarkedPair& pair : GuideTo(board, step.deduction, true).pairs) {
            if (pair.mark == PairMark::None) guide.pairs.push_back(pair);
        }
    }
    ShowGuide(game, guide, text + "Press Hint once more to lay the bridges.");
}

void TellMistake(Game& game, const Archipelago& board) {
    const std::vector<PlayedPair>& mistakes = game.guidance.hint.mistakes;
    if (game.guidance.presses < kReason) {
        return ShowGuide(game, {},
                         "No solution holds all the bridges on the board.\n\nPress Hint again to be shown one "
                         "that is wrong.");
    }
    const std::size_t shown = static_cast<std::size_t>(game.guidance.presses - kReason) % mistakes.size();
    const PlayedPair& wrong = mistakes[shown];
    Guide guide;
    guide.islands = {wrong.a, wrong.b};
    guide.pairs = {{wrong.a, wrong.b, wrong.bridges, PairMark::Wrong}};
    ShowGuide(game, guide, MistakeText(board, wrong));
}

void Tell(Game& game, const Archipelago& board) {
    switch (game.guidance.hint.kind) {
        case HintKind::Step:
            return TellStep(game, board);
        case HintKind::Mistake:
            return TellMistake(game, board);
        case HintKind::Finished:
            return ShowGuide(game, {}, "The puzzle is solved.");
        case HintKind::NoSolution:
            return ShowGuide(game, {}, "This puzzle has no solution.");
        case HintKind::Several:
            return ShowGuide(game, {}, "This puzzle has several solutions. Explain tells what they have in common.");
        case HintKind::Nothing:
            return ShowGuide(game, {}, "No next step was found.");
    }
}

}  // namespace

void mnuhint_Click(Game& game) {
    if (RefuseWhileBusy(game) || RefuseWithoutPuzzle(game)) return;
    ForgetStatus(game);
    const Archipelago board(game.board.puzzle);
    if (!GoesOn(game)) BeginHint(game, board);
    ++game.guidance.presses;
    Tell(game, board);
}

}  // namespace tidewalk
