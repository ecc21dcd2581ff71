// SPDX-License-Identifier: MIT
#include "techniques/show_guide.h"

#include <utility>

#include "board/magnify.h"
#include "board/show_board.h"

namespace tidewalk {

namespace {

MarkedPair Marked(const Archipelago& board, const SpanBound& bound, PairMark mark) {
    const Span& span = board.SpanAt(bound.span);
    return {board.IsleAt(span.ends[0]).id, board.IsleAt(span.ends[1]).id, bound.bridges, mark};
}

}  // namespace

std::string GuidanceText(const Game& game) {
    return game.guidance.textRevision == game.board.history.Revision() ? game.guidance.text : "";
}

void ShowGuide(Game& game, Guide guide, const std::string& text) {
    Board& board = game.board;
    guide.revision = board.history.Revision();
    board.guide = std::move(guide);
    game.guidance.text = text;
    if (!board.guide.islands.empty()) BringIntoView(game, board.puzzle.PlaceOf(board.guide.islands.front()));
    game.guidance.textRevision = board.history.Revision();
    // The board may show a solution, or the bridges of another step.
    RedrawBoard(game, false);
    game.pictures.ShowOverlay();
}

void EndGuidance(Game& game) {
    ShowGuide(game, {}, "");
    game.guidance.Clear();
}

Guide GuideTo(const Archipelago& board, const Deduction& deduction, bool results) {
    Guide guide;
    for (const int isle : deduction.isles)
        guide.islands.push_back(board.IsleAt(isle).id);
    if (!results) return guide;
    for (const SpanBound& must : deduction.must)
        guide.pairs.push_back(Marked(board, must, PairMark::Lay));
    for (const SpanBound& cannot : deduction.cannot)
        guide.pairs.push_back(Marked(board, cannot, PairMark::None));
    return guide;
}

std::optional<std::vector<SpanBridges>> SolutionsAtOnce(const Archipelago& board) {
    constexpr int kMostChoices = 20000;
    int choices = 0;
    return FindSolutions(board, 2, [&choices] { return ++choices <= kMostChoices; });
}

}  // namespace tidewalk
