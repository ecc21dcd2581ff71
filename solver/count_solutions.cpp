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
          connections_(board, MayBeBridged{this}) {}

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
        connections_.Run();
        const std::vector<int>& cuts = connections_.CutSpans();
        return connections_.ReachesAll() &&
               std::all_of(cuts.begin(), cuts.end(), [this](int span) { return Bound(span, 1, kMostBridges); });
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

    struct MayBeBridged {
        const Counter* counter;
        bool operator()(int span) const { return counter->bounds_[static_cast<std::size_t>(span)].high > 0; }
    };
    ConnectionSearch<MayBeBridged> connections_;
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
