// SPDX-License-Identifier: MIT
// The candidate links of a board, with a look-up of pairs that needs no scan.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/grid.h"
#include "model/link.h"

namespace tidewalk {

/// The list of links, numbered from 1. A pair may stand in it twice; look-ups find its first entry.
class LinkTable {
 public:
    /// Every pair of neighbours on a 25x25 board full of islands, once from each end.
    static constexpr int kCapacity = 2 * 2 * kMaxSide * (kMaxSide - 1);

    /// Empties the list for a board of `cols` columns.
    void Clear(int cols);

    int Count() const { return count_; }

    const Link& operator[](int i) const { return links_[Place(i)]; }

    /// Appends a link between two cells of one row or one column. A list that is full stays as it is.
    void Append(CellNumber first, CellNumber second, int state);

    /// Sets the state, 0..2, of entry `i`.
    void SetState(int i, int state) { links_[Place(i)].state = static_cast<std::uint8_t>(state); }

    /// The number of the first entry that joins `a` and `b`, in either order, or 0.
    int Find(CellNumber a, CellNumber b) const;

    /// All entries, in their order.
    std::vector<Link> Links() const { return {links_.begin() + 1, links_.begin() + 1 + count_}; }

 private:
    std::size_t Place(int i) const {
        CheckIndex(i >= 1 && i <= count_);
        return static_cast<std::size_t>(i);
    }

    // A cell starts at most one link towards higher columns and one towards higher rows, so the smaller id and the
    // direction name a pair. Ids of one row differ by less than the number of columns, ids of one column do not.
    struct FirstEntries {
        std::uint16_t right = 0;
        std::uint16_t down = 0;
    };

    int cols_ = kMaxSide;
    int count_ = 0;
    std::array<Link, kCapacity + 1> links_{};
    PerCell<FirstEntries> firstEntries_;
};

}  // namespace tidewalk
