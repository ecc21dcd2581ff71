// SPDX-License-Identifier: MIT
// The bridges that the player has laid.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "model/grid.h"

namespace tidewalk {

/// How many bridges lie between any two cells: 0, 1 or 2, the same in both orders of the pair.
class BridgeTable {
 public:
    int operator()(CellNumber a, CellNumber b) const;
    void Set(CellNumber a, CellNumber b, int state);
    void Clear() { laid_.clear(); }

    /// The bridges that end at a cell.
    int CountAt(CellNumber id) const;

    /// Two cells and the bridges between them, 1 or 2.
    struct Laid {
        CellNumber a;
        CellNumber b;
        int bridges;
    };
    /// Every pair with bridges, in both its orders, by ascending ids.
    std::vector<Laid> InBothOrders() const;

    bool operator==(const BridgeTable&) const = default;

 private:
    std::map<std::pair<CellNumber, CellNumber>, int> laid_;  ///< the smaller id first; no zeros
};

}  // namespace tidewalk
