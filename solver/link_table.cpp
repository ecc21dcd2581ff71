// SPDX-License-Identifier: MIT
#include "solver/link_table.h"

#include <algorithm>

namespace tidewalk {

void LinkTable::Clear(int cols) {
    cols_ = cols;
    count_ = 0;
    firstEntries_.Fill({});
}

void LinkTable::Append(CellNumber first, CellNumber second, int state) {
    if (count_ == kCapacity) return;
    ++count_;
    links_[Place(count_)] = MakeLink(first, second, state);
    const auto [low, high] = std::minmax(first, second);
    FirstEntries& entries = firstEntries_[low];
    std::uint16_t& entry = high - low < cols_ ? entries.right : entries.down;
    if (entry == 0) entry = static_cast<std::uint16_t>(count_);
}

int LinkTable::Find(CellNumber a, CellNumber b) const {
    const auto [low, high] = std::minmax(a, b);
    const FirstEntries& entries = firstEntries_[low];
    const int entry = high - low < cols_ ? entries.right : entries.down;
    if (entry == 0) return 0;
    const Link& link = links_[static_cast<std::size_t>(entry)];
    return std::max(link.first, link.second) == high ? entry : 0;
}

}  // namespace tidewalk
