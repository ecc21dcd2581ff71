// SPDX-License-Identifier: MIT
// The pairs of islands that the player has marked: no bridge goes there.
#pragma once

#include <algorithm>
#include <set>
#include <utility>

#include "model/grid.h"

namespace tidewalk {

/// A mark is that of a pair, in both of its orders.
class PairMarks {
 public:
    using Pair = std::pair<CellNumber, CellNumber>;

    bool operator()(CellNumber a, CellNumber b) const { return marked_.contains(std::minmax(a, b)); }
    void Set(CellNumber a, CellNumber b, bool marked) {
        if (marked) {
            marked_.insert(std::minmax(a, b));
        } else {
            marked_.erase(std::minmax(a, b));
        }
    }
    void Clear() { marked_.clear(); }

    /// By ascending ids, the smaller id of a pair first.
    const std::set<Pair>& All() const { return marked_; }

    bool operator==(const PairMarks&) const = default;

 private:
    std::set<Pair> marked_;
};

}  // namespace tidewalk
