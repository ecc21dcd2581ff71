// SPDX-License-Identifier: MIT
#include "solver/count_solutions.h"

#include <algorithm>
#include <vector>

#include "solver/archipelago.h"

namespace tidewalk {

namespace {

/// How many bridges may lie on a span, as far as the search has come.
struct Bounds {
    int low = 0;
    int high = kMostBridges;
};

/// Depth-first search over the bounds of the spans. Bounds only ever tighten on the way down; a trail of the old ones
/// leads back.
class Counter {
 public:
    Counter(const Archipelago& board, int limit, const MayGoOn& mayGoOn)
        : board_(board),
          limit_(limit),
          mayGoOn_(mayGoOn),
          bounds_(board.spans.size()),
          queued_(board.isles.size()),
          order_(board.isles.size()),
          lowest_(board.isles.size()) {}

    std::optional<std::vector<SpanBridges>> Run() {
        for (int isle = 0; isle < board_.IsleCount(); ++isle)
            Enqueue(isle);
        Search();
        if (stopped_) return std::nullopt;
        return std::move(found_);
    }

 private:
    struct OldBounds {
        int span;
        int low;
        int high;
    };

    Bounds& At(int span) { return bounds_[static_cast<std::size_t>(span)]; }

    void Enqueue(int isle) {
        if (queued_[static_cast<std::size_t>(isle)]) return;
        queued_[static_cast<std::size_t>(isle)] = true;
        queue_.push_back(isle);
    }

    /// Tightens the bounds of a span; false when nothing is left between them.
    bool Bound(int index, int low, int high) {
        Bounds& span = At(index);
        low = std::max(low, span.low);
        high = std::min(high, span.high);
        if (low > high) return false;
        if (low == span.low && high == span.high) return true;
        trail_.push_back({index, span.low, span.high});
        const bool nowBridged = span.low == 0 && low > 0;
        span.low = low;
        span.high = high;
        const Span& between = board_.SpanAt(index);
        Enqueue(between.ends[0]);
        Enqueue(between.ends[1]);
        if (!nowBridged) return true;
        return std::all_of(between.crossings.begin(), between.crossings.end(),
                           [this](int crossing) { return Bound(crossing, 0, 0); });
    }

    /// What the other spans of an island leave for each one.
    bool TightenIsle(int index) {
        const Isle& isle = board_.IsleAt(index);
        int low = 0;
        int high = 0;
        for (const int span : isle.spans) {
            low += At(span).low;
            high += At(span).high;
        }
        if (low > isle.number || high < isle.number) return false;
        for (const int span : isle.spans) {
            const int ownLow = At(span).low;
            const int ownHigh = At(span).high;
            if (!Bound(span, isle.number - (high - ownHigh), isle.number - (low - ownLow))) return false;
        }
        return true;
    }

    bool TightenIsles() {
        bool possible = true;
        while (possible && !queue_.empty()) {
            const int isle = queue_.back();
            queue_.pop_back();
            queued_[static_cast<std::size_t>(isle)] = false;
            possible = TightenIsle(isle);
        }
        for (const int isle : queue_)
            queued_[static_cast<std::size_t>(isle)] = false;
        queue_.clear();
        return possible;
    }

    /// Tightens until nothing follows any more. False when the bounds admit no solution.
    bool Propagate() {
        do {
            if (!TightenIsles() || !TightenConnections()) return false;
        } while (!queue_.empty());
        return true;
    }

    /// All islands must hang together over spans that may still be bridged, and a span without which they would not has
    /// to be bridged.
    bool TightenConnections() {
        std::fill(order_.begin(), order_.end(), 0);
        visited_ = 0;
        cutSpans_.clear();
        Explore(0, -1);
        if (visited_ != board_.IsleCount()) return false;
        return std::all_of(cutSpans_.begin(), cutSpans_.end(),
                           [this](int span) { return Bound(span, 1, kMostBridges); });
    }

    /// Numbers the islands depth first from `isle`, reached over the span `cameBy`, and collects the spans that no
    /// circle runs over.
    void Explore(int isle, int cameBy) {
        const auto at = static_cast<std::size_t>(isle);
        order_[at] = lowest_[at] = ++visited_;
        for (const int span : board_.IsleAt(isle).spans) {
            if (span == cameBy || At(span).high == 0) continue;
            const int other = board_.SpanAt(span).Other(isle);
            const auto otherAt = static_cast<std::size_t>(other);
            if (order_[otherAt] == 0) {
                Explore(other, span);
                if (lowest_[otherAt] > order_[at]) cutSpans_.push_back(span);
                lowest_[at] = std::min(lowest_[at], lowest_[otherAt]);
            } else {
                lowest_[at] = std::min(lowest_[at], order_[otherAt]);
            }
        }
    }

    /// An open span at the island with the fewest bridges left to choose, or -1 when every span is settled.
    int PickSpan() {
        int best = -1;
        int bestSlack = 0;
        for (const Isle& isle : board_.isles) {
            int open = -1;
            int slack = -isle.number;
            for (const int span : isle.spans) {
                slack += At(span).high;
                if (At(span).low < At(span).high && (open < 0 || At(span).low == 0)) open = span;
            }
            if (open >= 0 && (best < 0 || slack < bestSlack)) {
                best = open;
                bestSlack = slack;
            }
        }
        return best;
    }

    void BackTo(std::size_t length) {
        while (trail_.size() > length) {
            const OldBounds& old = trail_.back();
            At(old.span) = {old.low, old.high};
            trail_.pop_back();
        }
    }

    bool Done() const { return static_cast<int>(found_.size()) >= limit_ || stopped_; }

    void KeepSolution() {
        SpanBridges& bridges = found_.emplace_back();
        for (const Bounds& span : bounds_)
            bridges.push_back(static_cast<std::uint8_t>(span.low));
    }

    /// Collects the solutions within the present bounds and leaves them as they were.
    void Search() {
        const std::size_t before = trail_.size();
        if (Propagate()) {
            const int span = PickSpan();
            if (span < 0) {
                KeepSolution();
            } else if (!mayGoOn_()) {
                stopped_ = true;
            } else {
                const std::size_t here = trail_.size();
                const int low = At(span).low;
                if (Bound(span, low + 1, kMostBridges)) Search();
                DropQueue();
                BackTo(here);
                if (!Done() && Bound(span, low, low)) Search();
                DropQueue();
            }
        }
        DropQueue();
        BackTo(before);
    }

    void DropQueue() {
        for (const int isle : queue_)
            queued_[static_cast<std::size_t>(isle)] = false;
        queue_.clear();
    }

    const Archipelago& board_;
    int limit_;
    const MayGoOn& mayGoOn_;
    std::vector<SpanBridges> found_;
    bool stopped_ = false;

    std::vector<Bounds> bounds_;  ///< by span
    std::vector<OldBounds> trail_;
    std::vector<int> queue_;  ///< islands whose spans changed
    std::vector<bool> queued_;

    std::vector<int> order_;   ///< when an island was visited, from 1; 0 for not yet
    std::vector<int> lowest_;  ///< the earliest visited island that can be reached from it without going back
    std::vector<int> cutSpans_;
    int visited_ = 0;
};

}  // namespace

std::optional<std::vector<SpanBridges>> FindSolutions(const Archipelago& board, int limit, const MayGoOn& mayGoOn) {
    if (board.isles.empty()) return std::vector<SpanBridges>();
    return Counter(board, limit, mayGoOn).Run();
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
