// SPDX-License-Identifier: MIT
#include "solver/archipelago.h"

namespace tidewalk {

namespace {

/// Reads a board row by row; a span is found from its lower or right end.
class BoardReader {
 public:
    BoardReader(const Puzzle& puzzle, Archipelago& board) : puzzle_(puzzle), board_(board) {}

    void Read() {
        across_.Fill(-1);
        above_.fill(-1);
        for (int row = 1; row <= puzzle_.Rows; ++row) {
            int left = -1;
            for (int col = 1; col <= puzzle_.Cols; ++col) {
                const int number = puzzle_.IslandGrid(row, col);
                if (number <= 0) continue;
                const int isle = board_.IsleCount();
                board_.isles.push_back({puzzle_.CellId(row, col), {row, col}, number, {}, {}});
                int& above = above_[static_cast<std::size_t>(col)];
                if (left >= 0) AddAcross(left, isle);
                if (above >= 0) upright_.push_back({above, isle});
                left = above = isle;
            }
        }
        // The spans that run down come last, when all that they may cross are known.
        for (const auto& [upper, lower] : upright_)
            AddDown(upper, lower);
    }

 private:
    int AddSpan(int a, int b) {
        const int span = board_.SpanCount();
        board_.spans.push_back({{a, b}, {}});
        Isle& first = board_.isles[static_cast<std::size_t>(a)];
        Isle& second = board_.isles[static_cast<std::size_t>(b)];
        first.spans.push_back(span);
        first.seen.push_back(b);
        second.spans.push_back(span);
        second.seen.push_back(a);
        return span;
    }

    void AddAcross(int a, int b) {
        const int span = AddSpan(a, b);
        const CellPlace from = board_.IsleAt(a).place;
        for (int col = from.col + 1; col < board_.IsleAt(b).place.col; ++col)
            across_(from.row, col) = span;
    }

    void AddDown(int a, int b) {
        const int span = AddSpan(a, b);
        const CellPlace from = board_.IsleAt(a).place;
        for (int row = from.row + 1; row < board_.IsleAt(b).place.row; ++row) {
            const int crossed = across_(row, from.col);
            if (crossed < 0) continue;
            board_.spans[static_cast<std::size_t>(span)].crossings.push_back(crossed);
            board_.spans[static_cast<std::size_t>(crossed)].crossings.push_back(span);
        }
    }

    struct Pair {
        int upper;
        int lower;
    };

    const Puzzle& puzzle_;
    Archipelago& board_;
    Grid<int> across_;                       ///< by cell: the span that runs over it along the row, or -1
    std::array<int, kMaxSide + 1> above_{};  ///< by column: the last island, or -1
    std::vector<Pair> upright_;
};

}  // namespace

Archipelago::Archipelago(const Puzzle& puzzle) {
    BoardReader(puzzle, *this).Read();
}

}  // namespace tidewalk
