// SPDX-License-Identifier: MIT
// How a puzzle looks, in figures.
#pragma once

#include <limits>
#include <optional>

#include "model/grid.h"

namespace tidewalk {

/// Whole numbers from `least` to `most`.
struct Figures {
    int least = 0;
    int most = std::numeric_limits<int>::max();

    bool Hold(int figure) const { return least <= figure && figure <= most; }
    bool Empty() const { return least > most; }

    bool operator==(const Figures&) const = default;
};

/// What both hold; empty when there is nothing.
Figures Common(const Figures& a, const Figures& b);

/// How many parts of `whole`, none to all, are as many hundredths of it as these say; empty when there is no such
/// number.
Figures PartsOf(const Figures& hundredths, int whole);

/// How a puzzle looks; what is not set is as it grows.
struct Character {
    std::optional<Figures> density;  ///< islands in every hundred cells
    std::optional<Figures> loops;    ///< bridged pairs beyond those of a tree of as many islands
    std::optional<Figures> doubles;  ///< double bridges in every hundred bridged pairs

    bool operator==(const Character&) const = default;
};

/// The fewest islands that a board of this size should have, each side 7..25: half of what it usually has.
int FewestIslands(BoardSize size);

/// The densest boards of which new ones can still be made in good time, in islands in every hundred cells. Islands that
/// must not touch and yet hang together leave room for few more.
inline constexpr int kMostDensity = 45;

/// How many islands a board of this size can be ordered to have: `FewestIslands` to as many as `kMostDensity` says.
Figures IslandsToOrder(BoardSize size);

/// How many loops a board of this size can be ordered to have, from none on.
int MostLoops(BoardSize size);

/// Whether puzzles of this size can be looked for with such figures: some number of islands and of loops within them is
/// one that can be ordered, and the doubles are 0..100. All the same nobody may find any, as with many loops on a board
/// of few islands.
bool CanBeOrdered(const Character& character, BoardSize size);

}  // namespace tidewalk
