// SPDX-License-Identifier: MIT
// What there is to be said of the grids of a file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/grid_reader.h"

namespace tidewalk {

/// Counts grids, however many, and tells in words what they are.
class GridTally {
 public:
    void Add(const FoundGrid& grid);

    std::int64_t Grids() const { return grids_; }
    std::int64_t Puzzles() const { return grids_ - others_; }

    /// "12 grids of 9x9, one not a puzzle: line 40".
    std::string Words() const;

 private:
    std::int64_t grids_ = 0;
    std::int64_t others_ = 0;               ///< that are no puzzles
    std::vector<BoardSize> sizes_;          ///< of the puzzles, each once
    std::vector<std::int64_t> otherLines_;  ///< where the first of the others begin
};

}  // namespace tidewalk
