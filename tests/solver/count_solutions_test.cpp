// SPDX-License-Identifier: MIT
#include "solver/count_solutions.h"

#include <gtest/gtest.h>

#include <random>

#include "support/board_text.h"

namespace tidewalk::test {
namespace {

std::optional<int> Count(const std::vector<std::string>& rows, int limit = 100) {
    return CountSolutions(Numbers(rows), static_cast<int>(rows.size()), static_cast<int>(rows.front().size()), limit);
}

/// Tries every choice of bridges on a small board and looks at the whole of each.
class EveryChoice {
 public:
    EveryChoice(const Grid<int>& numbers, int rows, int cols) : numbers_(numbers), rows_(rows), cols_(cols) {
        for (int row = 1; row <= rows; ++row) {
            for (int col = 1; col <= cols; ++col) {
                if (numbers(row, col) <= 0) continue;
                ++islands_;
                See(row, col, 0, 1);
                See(row, col, 1, 0);
            }
        }
    }

    int Count() { return islands_ == 0 ? 0 : Try(0); }

 private:
    struct Pair {
        int row, col, toRow, toCol, bridges;
    };

    void See(int row, int col, int down, int right) {
        for (int r = row + down, c = col + right; r <= rows_ && c <= cols_; r += down, c += right) {
            if (numbers_(r, c) <= 0) continue;
            pairs_.push_back({row, col, r, c, 0});
            return;
        }
    }

    int Try(std::size_t pair) {
        if (pair == pairs_.size()) return IsSolution() ? 1 : 0;
        int count = 0;
        for (int bridges = 0; bridges <= 2; ++bridges) {
            pairs_[pair].bridges = bridges;
            count += Try(pair + 1);
        }
        return count;
    }

    bool IsSolution() const {
        Grid<int> ends;
        Grid<int> crossed;
        for (const Pair& pair : pairs_) {
            if (pair.bridges == 0) continue;
            ends(pair.row, pair.col) += pair.bridges;
            ends(pair.toRow, pair.toCol) += pair.bridges;
            for (int r = pair.row; r <= pair.toRow; ++r) {
                for (int c = pair.col; c <= pair.toCol; ++c) {
                    if (numbers_(r, c) <= 0 && ++crossed(r, c) > 1) return false;
                }
            }
        }
        for (int row = 1; row <= rows_; ++row) {
            for (int col = 1; col <= cols_; ++col) {
                if (numbers_(row, col) > 0 && ends(row, col) != numbers_(row, col)) return false;
            }
        }
        return Reached() == islands_;
    }

    /// How many islands hang together with the first one.
    int Reached() const {
        Grid<int> reached;
        reached(pairs_.empty() ? 1 : pairs_[0].row, pairs_.empty() ? 1 : pairs_[0].col) = 1;
        int count = 1;
        for (bool more = true; more;) {
            more = false;
            for (const Pair& pair : pairs_) {
                if (pair.bridges == 0 || reached(pair.row, pair.col) == reached(pair.toRow, pair.toCol)) continue;
                reached(pair.row, pair.col) = reached(pair.toRow, pair.toCol) = 1;
                ++count;
                more = true;
            }
        }
        return count;
    }

    const Grid<int>& numbers_;
    int rows_;
    int cols_;
    int islands_ = 0;
    std::vector<Pair> pairs_;
};

TEST(CountSolutions, BoardsWithNoneOneAndSeveral) {
    EXPECT_EQ(Count({"1.1"}), 1);
    EXPECT_EQ(Count({"2.2"}), 1);
    EXPECT_EQ(Count({"3.3"}), 0);
    EXPECT_EQ(Count({"1.2"}), 0);
    EXPECT_EQ(Count({"3.3", "...", "3.3"}), 2);
    EXPECT_EQ(Count({"4.4", "...", "4.4"}), 1);
}

TEST(CountSolutions, AllIslandsHaveToHangTogether) {
    EXPECT_EQ(Count({"1.1", "...", "1.1"}), 0);
    EXPECT_EQ(Count({"1.1..", ".....", "...11"}), 0);
    EXPECT_EQ(Count({"2.2", "...", "2.2"}), 1) << "only the ring; two double bridges would part the islands";
}

TEST(CountSolutions, BridgesDoNotCross) {
    EXPECT_EQ(Count({".1.", "1.1", ".1."}), 0);
}

TEST(CountSolutions, EmptyAndLonelyBoardsHaveNone) {
    EXPECT_EQ(Count({"...", "..."}), 0);
    EXPECT_EQ(Count({"...", ".1."}), 0);
    EXPECT_EQ(Count({"9.9"}), 0);
}

TEST(CountSolutions, StopsAtTheLimitAndSaysWhenItCannotTell) {
    EXPECT_EQ(Count({"3.3", "...", "3.3"}, 1), 1);
    const Grid<int> ring = Numbers({"3.3", "...", "3.3"});
    EXPECT_EQ(CountSolutions(ring, 3, 3, 2, 0), std::nullopt);
}

/// Islands at random places, each with the number that random bridges to the next ones give it.
Grid<int> RandomBoard(std::mt19937& random, int rows, int cols) {
    const auto draw = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    Grid<int> islands;
    for (int i = 0; i < 7; ++i)
        islands(1 + draw(rows), 1 + draw(cols)) = 1;
    Grid<int> numbers;
    const auto bridge = [&](int row, int col, int down, int right) {
        int r = row + down;
        int c = col + right;
        while (r <= rows && c <= cols && islands(r, c) == 0) {
            r += down;
            c += right;
        }
        if (r > rows || c > cols) return;
        const int bridges = draw(3);
        numbers(row, col) += bridges;
        numbers(r, c) += bridges;
    };
    for (int row = 1; row <= rows; ++row) {
        for (int col = 1; col <= cols; ++col) {
            if (islands(row, col) == 0) continue;
            bridge(row, col, 0, 1);
            bridge(row, col, 1, 0);
        }
    }
    return numbers;
}

TEST(CountSolutions, AgreesWithTryingEverythingOnSmallBoards) {
    std::mt19937 random(7);
    int solvable = 0;
    int several = 0;
    for (int board = 0; board < 2000; ++board) {
        const int rows = 3 + static_cast<int>(random() % 3);
        const int cols = 3 + static_cast<int>(random() % 3);
        const Grid<int> numbers = RandomBoard(random, rows, cols);
        const int expected = EveryChoice(numbers, rows, cols).Count();
        solvable += expected > 0;
        several += expected > 1;
        ASSERT_EQ(CountSolutions(numbers, rows, cols, 1000), expected) << "board " << board;
    }
    EXPECT_GT(solvable, 100);
    EXPECT_GT(several, 20);
    EXPECT_LT(solvable, 2000);
}

}  // namespace
}  // namespace tidewalk::test
