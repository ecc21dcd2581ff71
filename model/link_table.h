// SPDX-License-Identifier: MIT
// Links between islands: the bridges of a stored solution, or the solver's candidates.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace tidewalk {

/// Two islands and what may still be laid between them.
struct Link {
    std::uint16_t first = 0;   ///< id of one end; the upper or left one in everything that the program makes
    std::uint16_t second = 0;  ///< id of the other end
    std::uint8_t state = 2;    ///< 2 no bridge yet, 1 one bridge laid, 0 a double bridge

    bool operator==(const Link&) const = default;
};

/// The seven characters of a link record: both ids in three digits and the state, "0120151".
std::string Text(const Link& link);

/// Reads a link record; nothing when the text has another form or names a cell beyond 625.
std::optional<Link> ParseLink(std::string_view text);

/// The list of links, numbered from 1, with a look-up of pairs that needs no scan.
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
