// SPDX-License-Identifier: MIT
#include "model/grid_tally.h"

#include <algorithm>

#include "model/numbers.h"

namespace tidewalk {

namespace {

/// How many places are named one by one.
constexpr std::size_t kMostNamed = 5;

}  // namespace

void GridTally::Add(const FoundGrid& grid) {
    ++grids_;
    if (grid.isPuzzle) {
        const BoardSize size = grid.puzzle.Size();
        if (std::find(sizes_.begin(), sizes_.end(), size) == sizes_.end()) sizes_.push_back(size);
    } else if (++others_; otherLines_.size() < kMostNamed) {
        otherLines_.push_back(grid.line);
    }
}

std::string GridTally::Words() const {
    constexpr std::size_t kMostSizes = 3;
    std::string text = grids_ == 1 ? "one grid" : std::to_string(grids_) + " grids";
    std::vector<std::string> sizes;
    for (const BoardSize size : sizes_)
        sizes.push_back(SizeText(size));
    if (sizes.size() > kMostSizes) sizes = {std::to_string(sizes.size()) + " sizes"};
    if (!sizes.empty()) text += " of " + Listed(sizes);
    if (others_ == 0) return text;
    std::vector<std::string> lines;
    for (const std::int64_t line : otherLines_)
        lines.push_back(std::to_string(line));
    const std::int64_t unnamed = others_ - static_cast<std::int64_t>(otherLines_.size());
    if (unnamed > 0) lines.push_back(std::to_string(unnamed) + " more");
    return text + ", " + (others_ == 1 ? "one not a puzzle: line " : std::to_string(others_) + " not puzzles: lines ") +
           Listed(lines);
}

}  // namespace tidewalk
