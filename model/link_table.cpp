// SPDX-License-Identifier: MIT
#include "model/link_table.h"

#include <algorithm>

#include "model/numbers.h"

namespace tidewalk {

std::string Text(const Link& link) {
    return Format(link.first, "000") + Format(link.second, "000") + NumText(link.state);
}

std::optional<Link> ParseLink(std::string_view text) {
    if (text.size() != 7) return std::nullopt;
    const int first = RoundedVal(text.substr(0, 3));
    const int second = RoundedVal(text.substr(3, 3));
    const int state = RoundedVal(text.substr(6));
    if (first < 0 || first > kMaxCells || second < 0 || second > kMaxCells || state < 0 || state > 2) {
        return std::nullopt;
    }
    const Link link{static_cast<std::uint16_t>(first), static_cast<std::uint16_t>(second),
                    static_cast<std::uint8_t>(state)};
    if (Text(link) != text) return std::nullopt;
    return link;
}

void LinkTable::Clear(int cols) {
    cols_ = cols;
    count_ = 0;
    firstEntries_.Fill({});
}

void LinkTable::Append(CellNumber first, CellNumber second, int state) {
    if (count_ == kCapacity) return;
    ++count_;
    links_[Place(count_)] = {static_cast<std::uint16_t>(first), static_cast<std::uint16_t>(second),
                             static_cast<std::uint8_t>(state)};
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
