// SPDX-License-Identifier: MIT
// The board with its margin, and the numbering of its cells.
#pragma once

#include <array>
#include <cstddef>

#include "model/check.h"

namespace tidewalk {

inline constexpr int kMinSide = 7;   ///< The smallest board that is created, in cells.
inline constexpr int kMaxSide = 25;  ///< The largest board, in cells.
inline constexpr int kMaxCells = kMaxSide * kMaxSide;

/// The id of a board cell, 1..625, row by row; 0 stands for no cell.
using CellNumber = int;

/// Where a cell lies, 1-based.
struct CellPlace {
    int row = 0;
    int col = 0;

    bool operator==(const CellPlace&) const = default;
};

/// How many rows and columns a board has.
struct BoardSize {
    int rows = 0;
    int cols = 0;

    bool operator==(const BoardSize&) const = default;
};

/// One value a cell, with two spare cells on every side so that a look past the border needs no test.
///
/// Rows and columns run from -2 to 27, row first; the board itself lies in 1..25 of both. In memory the row index
/// varies fastest.
template <class T>
class Grid {
 public:
    static constexpr int kFirst = -2;
    static constexpr int kLast = kMaxSide + 2;

    T& operator()(int row, int col) { return values_[Place(row, col)]; }
    const T& operator()(int row, int col) const { return values_[Place(row, col)]; }

    /// Sets every cell, margin included.
    void Fill(const T& value) { values_.fill(value); }

    bool operator==(const Grid&) const = default;

 private:
    static constexpr std::size_t kExtent = kLast - kFirst + 1;

    static std::size_t Place(int row, int col) {
        CheckIndex(row >= kFirst && row <= kLast && col >= kFirst && col <= kLast);
        return static_cast<std::size_t>(row - kFirst) + static_cast<std::size_t>(col - kFirst) * kExtent;
    }

    std::array<T, kExtent * kExtent> values_{};
};

/// One value a cell id, 0..625.
template <class T>
class PerCell {
 public:
    T& operator[](CellNumber id) { return values_[Place(id)]; }
    const T& operator[](CellNumber id) const { return values_[Place(id)]; }

    void Fill(const T& value) { values_.fill(value); }

    bool operator==(const PerCell&) const = default;

 private:
    static std::size_t Place(CellNumber id) {
        CheckIndex(id >= 0 && id <= kMaxCells);
        return static_cast<std::size_t>(id);
    }

    std::array<T, kMaxCells + 1> values_{};
};

}  // namespace tidewalk
