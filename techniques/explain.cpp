// SPDX-License-Identifier: MIT
#include "techniques/explain.h"

#include "techniques/deducer.h"
#include "techniques/sentences.h"

namespace tidewalk {

bool WalkPath(const Archipelago& board, const SpanBridges* only, const MayGoOn& mayGoOn, const TakeDeduction& take) {
    Position position(board);
    Deducer deducer(position, Purpose::Path);
    while (position.Unfinished() > 0 && mayGoOn()) {
        auto deduction = deducer.Next(mayGoOn);
        if (!deduction) {
            if (only == nullptr || !mayGoOn()) break;
            deduction = FindByTrial(position, *only);
        }
        take(position, *deduction);
        Apply(position, *deduction);
    }
    return position.Unfinished() == 0;
}

std::vector<Step> ExplainPath(const Archipelago& board, const SpanBridges* only, const MayGoOn& mayGoOn) {
    std::vector<Step> steps;
    WalkPath(board, only, mayGoOn, [&](const Position& position, const Deduction& deduction) {
        steps.push_back({deduction, Sentence(position, deduction)});
    });
    return steps;
}

Deduction FindByTrial(const Position& position, const SpanBridges& solution) {
    const Archipelago& board = position.Board();
    Deduction deduction;
    deduction.technique = Technique::Trial;
    for (int span = 0; span < board.SpanCount(); ++span) {
        const int bridges = solution[static_cast<std::size_t>(span)];
        if (bridges <= position.Laid(span)) continue;
        deduction.must.push_back({span, bridges});
        deduction.isles = {board.SpanAt(span).ends[0], board.SpanAt(span).ends[1]};
        break;
    }
    return deduction;
}

}  // namespace tidewalk
