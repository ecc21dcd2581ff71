// SPDX-License-Identifier: MIT
#include "solver/count_solutions.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tidewalk {

namespace {

constexpr int kMostBridges = 2;

/// A pair of islands that see each other, and how many bridges may lie between them.
struct Span {
    std::array<int, 2> ends{};
    int low = 0;
    int high = kMostBridges;
    std::vector<int> crossings;  ///< the spans that cannot be bridged when this one is

    int Other(int island) const { return ends[0] == island ? ends[1] : ends[0]; }
};

struct Isle {
    int number = 0;
    std::vector<int> spans;
};

/// The islands of a board and the spans between them.
struct Archipelago {
    std::vector<Isle> isles;
    std::vector<Span> spans;
};

/// Reads a board row by row; a span is found from its lower or right end.
class BoardReader {
 public:
    explicit BoardReader(const Puzzle& puzzle) : puzzle_(puzzle) {}

    Archipelago Read() {
        across_.Fill(-1);
        std::array<int, kMaxSide + 1> above{};
        std::array<int, kMaxSide + 1> aboveRow{};
        above.fill(-1);
        for (int row = 1; row <= puzzle_.Rows; ++row) {
            int left = -1;
            int leftCol = 0;
            for (int col = 1; col <= puzzle_.Cols; ++col) {
                if (puzzle_.IslandGrid(row, col) <= 0) continue;
                const int isle = static_cast<int>(board_.isles.size());
                board_.isles.push_back({puzzle_.IslandGrid(row, col), {}});
                const auto at = static_cast<std::size_t>(col);
                if (left >= 0) AddAcross(row, leftCol, col, left, isle);
                if (above[at] >= 0) spansDown_.push_back({col, aboveRow[at], row, above[at], isle});
                left = isle;
                leftCol = col;
                above[at] = isle;
                aboveRow[at] = row;
            }
        }
        for (const Down& down : spansDown_)
            AddDown(down);
        return std::move(board_);
    }

 private:
    struct Down {
        int col;
        int fromRow;
        int toRow;
        int upper;
        int lower;
    };

    int AddSpan(int a, int b) {
        const int span = static_cast<int>(board_.spans.size());
        board_.spans.push_back({{a, b}, 0, kMostBridges, {}});
        board_.isles[static_cast<std::size_t>(a)].spans.push_back(span);
        board_.isles[static_cast<std::size_t>(b)].spans.push_back(span);
        return span;
    }

    void AddAcross(int row, int fromCol, int toCol, int a, int b) {
        const int span = AddSpan(a, b);
        for (int col = fromCol + 1; col < toCol; ++col)
            across_(row, col) = span;
    }

    void AddDown(const Down& down) {
        const int span = AddSpan(down.upper, down.lower);
        for (int row = down.fromRow + 1; row < down.toRow; ++row) {
            const int crossed = across_(row, down.col);
            if (crossed < 0) continue;
            board_.spans[static_cast<std::size_t>(span)].crossings.push_back(crossed);
            board_.spans[static_cast<std::size_t>(crossed)].crossings.push_back(span);
        }
    }

    const Puzzle& puzzle_;
    Archipelago board_;
    Grid<int> across_;
    std::vector<Down> spansDown_;
};

/// Depth-first search over the bounds of the spans. Bounds only ever tighten on the way down; a trail of the old ones
/// leads back.
class Counter {
 public:
    Counter(Archipelago board, int limit, const MayGoOn& mayGoOn)
        : isles_(std::move(board.isles)), spans_(std::move(board.spans)), limit_(limit), mayGoOn_(mayGoOn) {
        queued_.assign(isles_.size(), false);
        order_.resize(isles_.size());
        lowest_.resize(isles_.size());
    }

    std::optional<int> Run() {
        for (std::size_t isle = 0; isle < isles_.size(); ++isle)
            Enqueue(static_cast<int>(isle));
        Search();
        if (stopped_) return std::nullopt;
        return count_;
    }

 private:
    struct OldBounds {
        int span;
        int low;
        int high;
    };

    Span& At(int span) { return spans_[static_cast<std::size_t>(span)]; }
    Isle& IsleAt(int isle) { return isles_[static_cast<std::size_t>(isle)]; }

    void Enqueue(int isle) {
        if (queued_[static_cast<std::size_t>(isle)]) return;
        queued_[static_cast<std::size_t>(isle)] = true;
        queue_.push_back(isle);
    }

    /// Tightens the bounds of a span; false when nothing is left between them.
    bool Bound(int index, int low, int high) {
        Span& span = At(index);
        low = std::max(low, span.low);
        high = std::min(high, span.high);
        if (low > high) return false;
        if (low == span.low && high == span.high) return true;
        trail_.push_back({index, span.low, span.high});
        const bool nowBridged = span.low == 0 && low > 0;
        span.low = low;
        span.high = high;
        Enqueue(span.ends[0]);
        Enqueue(span.ends[1]);
        if (!nowBridged) return true;
        return std::all_of(span.crossings.begin(), span.crossings.end(),
                           [this](int crossing) { return Bound(crossing, 0, 0); });
    }

    /// What the other spans of an island leave for each one.
    bool TightenIsle(int index) {
        const Isle& isle = IsleAt(index);
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
        if (visited_ != static_cast<int>(isles_.size())) return false;
        return std::all_of(cutSpans_.begin(), cutSpans_.end(),
                           [this](int span) { return Bound(span, 1, kMostBridges); });
    }

    /// Numbers the islands depth first from `isle`, reached over the span `cameBy`, and collects the spans that no
    /// circle runs over.
    void Explore(int isle, int cameBy) {
        const auto at = static_cast<std::size_t>(isle);
        order_[at] = lowest_[at] = ++visited_;
        for (const int span : isles_[at].spans) {
            if (span == cameBy || At(span).high == 0) continue;
            const int other = At(span).Other(isle);
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
        for (const Isle& isle : isles_) {
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
            Span& span = At(trail_.back().span);
            span.low = trail_.back().low;
            span.high = trail_.back().high;
            trail_.pop_back();
        }
    }

    bool Done() const { return count_ >= limit_ || stopped_; }

    /// Counts the solutions within the present bounds and leaves them as they were.
    void Search() {
        const std::size_t before = trail_.size();
        if (Propagate()) {
            const int span = PickSpan();
            if (span < 0) {
                ++count_;
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

    std::vector<Isle> isles_;
    std::vector<Span> spans_;
    int limit_;
    const MayGoOn& mayGoOn_;
    int count_ = 0;
    bool stopped_ = false;

    std::vector<OldBounds> trail_;
    std::vector<int> queue_;  ///< islands whose spans changed
    std::vector<bool> queued_;

    std::vector<int> order_;   ///< when an island was visited, from 1; 0 for not yet
    std::vector<int> lowest_;  ///< the earliest visited island that can be reached from it without going back
    std::vector<int> cutSpans_;
    int visited_ = 0;
};

}  // namespace

std::optional<int> CountSolutions(const Puzzle& puzzle, int limit, std::int64_t steps) {
    return CountSolutionsWhile(puzzle, limit, [steps]() mutable { return steps-- > 0; });
}

std::optional<int> CountSolutionsWhile(const Puzzle& puzzle, int limit, const MayGoOn& mayGoOn) {
    Archipelago board = BoardReader(puzzle).Read();
    if (board.isles.empty()) return 0;
    return Counter(std::move(board), limit, mayGoOn).Run();
}

}  // namespace tidewalk
