// SPDX-License-Identifier: MIT
#include "generator/solved_layout.h"

#include <algorithm>
#include <vector>

namespace tidewalk {

SolvedLayout::SolvedLayout(const Puzzle& solved) : size_(solved.Size()), board_(solved), bridges_(board_.spans.size()) {
    PerCell<int> isleAt;
    for (int isle = 0; isle < board_.IsleCount(); ++isle) {
        isleAt[board_.IsleAt(isle).id] = isle;
        board_.isles[static_cast<std::size_t>(isle)].number = 0;
    }
    for (const Link& link : solved.LinkList) {
        const int from = isleAt[link.first];
        for (const int span : board_.IsleAt(from).spans) {
            if (link.Bridges() > 0 && board_.SpanAt(span).Other(from) == isleAt[link.second]) Set(span, link.Bridges());
        }
    }
}

void SolvedLayout::Set(int span, int bridges) {
    std::uint8_t& laid = bridges_[static_cast<std::size_t>(span)];
    pairs_ += (bridges > 0) - (laid > 0);
    doubles_ += (bridges == kMostBridges) - (laid == kMostBridges);
    for (const int isle : board_.SpanAt(span).ends)
        board_.isles[static_cast<std::size_t>(isle)].number += bridges - laid;
    laid = static_cast<std::uint8_t>(bridges);
}

bool SolvedLayout::IsFree(int span) const {
    const auto& crossings = board_.SpanAt(span).crossings;
    return std::all_of(crossings.begin(), crossings.end(), [this](int crossing) { return At(crossing) == 0; });
}

bool SolvedLayout::IsSpare(int span) const {
    const auto [from, to] = board_.SpanAt(span).ends;
    std::vector<bool> reached(board_.isles.size());
    std::vector<int> waiting{from};
    reached[static_cast<std::size_t>(from)] = true;
    while (!waiting.empty()) {
        const int isle = waiting.back();
        waiting.pop_back();
        if (isle == to) return true;
        for (const int next : board_.IsleAt(isle).spans) {
            const auto other = static_cast<std::size_t>(board_.SpanAt(next).Other(isle));
            if (next == span || At(next) == 0 || reached[other]) continue;
            reached[other] = true;
            waiting.push_back(static_cast<int>(other));
        }
    }
    return false;
}

Puzzle SolvedLayout::ToPuzzle() const {
    Puzzle puzzle(size_);
    for (const Isle& isle : board_.isles)
        puzzle.SetIsland(isle.id, isle.number);
    for (int span = 0; span < board_.SpanCount(); ++span) {
        const auto [from, to] = board_.SpanAt(span).ends;
        puzzle.LinkList.push_back(MakeLink(board_.IsleAt(from).id, board_.IsleAt(to).id, kMostBridges - At(span)));
    }
    return puzzle;
}

}  // namespace tidewalk
