// SPDX-License-Identifier: MIT
#include "techniques/position.h"

namespace tidewalk {

Position::Position(const Archipelago& board)
    : board_(&board),
      laid_(board.spans.size(), 0),
      most_(board.spans.size(), kMostBridges),
      crossed_(board.spans.size(), 0),
      unfinished_(board.IsleCount()) {
    for (int isle = 0; isle < board.IsleCount(); ++isle) {
        need_.push_back(static_cast<std::int8_t>(board.IsleAt(isle).number));
        touched.Insert(isle);
    }
}

void Position::Lay(int span, int n) {
    Note(span);
    std::int8_t& laid = laid_[static_cast<std::size_t>(span)];
    if (laid == 0) {
        for (const int crossing : board_->SpanAt(span).crossings) {
            ++crossed_[static_cast<std::size_t>(crossing)];
            for (const int end : board_->SpanAt(crossing).ends)
                touched.Insert(end);
        }
    }
    laid = static_cast<std::int8_t>(laid + n);
    AddToNeeds(span, -n);
    for (const int end : board_->SpanAt(span).ends)
        TouchAround(end);
}

void Position::Limit(int span, int most) {
    if (most >= Most(span)) return;
    Note(span);
    most_[static_cast<std::size_t>(span)] = static_cast<std::int8_t>(most);
    for (const int end : board_->SpanAt(span).ends)
        touched.Insert(end);
}

void Position::BackTo(std::size_t changes) {
    while (trail_.size() > changes) {
        const Change& old = trail_.back();
        const auto at = static_cast<std::size_t>(old.span);
        AddToNeeds(old.span, laid_[at] - old.laid);
        if (laid_[at] > 0 && old.laid == 0) {
            for (const int crossing : board_->SpanAt(old.span).crossings)
                --crossed_[static_cast<std::size_t>(crossing)];
        }
        laid_[at] = old.laid;
        most_[at] = old.most;
        trail_.pop_back();
    }
}

void Position::Note(int span) {
    const auto at = static_cast<std::size_t>(span);
    trail_.push_back({span, laid_[at], most_[at]});
}

void Position::AddToNeeds(int span, int n) {
    for (const int end : board_->SpanAt(span).ends) {
        std::int8_t& need = need_[static_cast<std::size_t>(end)];
        unfinished_ -= need > 0 ? 1 : 0;
        need = static_cast<std::int8_t>(need + n);
        unfinished_ += need > 0 ? 1 : 0;
    }
}

/// Who looks at an island sees another need there.
void Position::TouchAround(int isle) {
    touched.Insert(isle);
    for (const int span : board_->IsleAt(isle).spans)
        touched.Insert(board_->SpanAt(span).Other(isle));
}

}  // namespace tidewalk
