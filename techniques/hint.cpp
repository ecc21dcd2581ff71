// SPDX-License-Identifier: MIT
#include "techniques/hint.h"

#include <algorithm>

#include "techniques/deducer.h"
#include "techniques/groups.h"
#include "techniques/sentences.h"

namespace tidewalk {

namespace {

/// What the only solution has otherwise.
std::vector<PlayedPair> Mistakes(const Archipelago& board, const SpanBridges& solution,
                                 const std::vector<PlayedPair>& played) {
    std::vector<PlayedPair> mistakes;
    for (const PlayedPair& pair : played) {
        const int span = SpanBetween(board, pair.a, pair.b);
        const int bridges = span < 0 ? 0 : solution[static_cast<std::size_t>(span)];
        if (pair.bridges > bridges || (pair.noMore && pair.bridges < bridges)) mistakes.push_back(pair);
    }
    return mistakes;
}

Position PositionOf(const Archipelago& board, const std::vector<PlayedPair>& played) {
    Position position(board);
    for (const PlayedPair& pair : played) {
        const int span = SpanBetween(board, pair.a, pair.b);
        if (span < 0) continue;
        if (pair.bridges > 0) position.Lay(span, pair.bridges);
        if (pair.noMore) position.Limit(span, pair.bridges);
    }
    return position;
}

/// Whether every island has exactly its bridges, none of them crosses another one, and all are one group.
bool IsSolved(const Position& position) {
    const Archipelago& board = position.Board();
    for (int isle = 0; isle < board.IsleCount(); ++isle) {
        if (position.Need(isle) != 0) return false;
    }
    for (int span = 0; span < board.SpanCount(); ++span) {
        if (position.Laid(span) > 0 && position.Blocked(span)) return false;
    }
    const Groups groups(position);
    return groups.Size(groups.Of(0)) == board.IsleCount();
}

/// Whether a deduction looks at nothing but the spans of the island that it is about.
bool IsAboutOneIsland(const Deduction& deduction) {
    switch (deduction.technique) {
        case Technique::Last:
        case Technique::Least:
        case Technique::CutOff:
            return true;
        case Technique::NoMore:
        case Technique::WayOut:
        case Technique::Suppose:
        case Technique::Trial:
            break;
    }
    return false;
}

/// Drops the steps that the last one does not need.
void KeepNeeded(const Archipelago& board, std::vector<Step>& steps) {
    if (steps.empty() || !IsAboutOneIsland(steps.back().deduction)) return;
    std::vector<int> isles{steps.back().deduction.isles.front()};
    const auto isNeeded = [&](const Step& step) {
        return std::any_of(step.deduction.cannot.begin(), step.deduction.cannot.end(), [&](const SpanBound& cannot) {
            const auto& ends = board.SpanAt(cannot.span).ends;
            return std::find_first_of(isles.begin(), isles.end(), ends.begin(), ends.end()) != isles.end();
        });
    };
    std::vector<Step> needed{steps.back()};
    for (auto step = steps.rbegin() + 1; step != steps.rend(); ++step) {
        if (!isNeeded(*step)) continue;
        isles.insert(isles.end(), step->deduction.isles.begin(), step->deduction.isles.end());
        needed.insert(needed.begin(), *step);
    }
    steps = std::move(needed);
}

}  // namespace

int SpanBetween(const Archipelago& board, CellNumber a, CellNumber b) {
    const auto found = std::find_if(board.spans.begin(), board.spans.end(), [&](const Span& span) {
        const CellNumber from = board.IsleAt(span.ends[0]).id;
        const CellNumber to = board.IsleAt(span.ends[1]).id;
        return (from == a && to == b) || (from == b && to == a);
    });
    return found == board.spans.end() ? -1 : static_cast<int>(found - board.spans.begin());
}

Hint FindHint(const Archipelago& board, const std::optional<std::vector<SpanBridges>>& solutions,
              const std::vector<PlayedPair>& played, HintStep wanted, const MayGoOn& mayGoOn) {
    if (solutions && solutions->empty()) return {HintKind::NoSolution, {}, {}};
    if (solutions && solutions->size() > 1) return {HintKind::Several, {}, {}};
    if (solutions) {
        auto mistakes = Mistakes(board, solutions->front(), played);
        if (!mistakes.empty()) return {HintKind::Mistake, {}, std::move(mistakes)};
    }
    Position position = PositionOf(board, played);
    if (IsSolved(position)) return {HintKind::Finished, {}, {}};
    Hint hint;
    Deducer deducer(position, Purpose::Hint);
    for (bool lays = false; !lays;) {
        auto deduction = deducer.Next(mayGoOn);
        if (!deduction) {
            if (!solutions || position.Unfinished() == 0 || !mayGoOn()) return {};
            deduction = FindByTrial(position, solutions->front());
        }
        lays = wanted == HintStep::Any || !deduction->must.empty();
        // Where no more bridges go is seen by every other technique without being told.
        if (lays || deduction->technique != Technique::NoMore)
            hint.steps.push_back({*deduction, Sentence(position, *deduction)});
        if (!lays) Apply(position, *deduction);
    }
    hint.kind = HintKind::Step;
    KeepNeeded(board, hint.steps);
    return hint;
}

}  // namespace tidewalk
