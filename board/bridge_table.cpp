// SPDX-License-Identifier: MIT
#include "board/bridge_table.h"

#include <algorithm>
#include <tuple>

namespace tidewalk {

int BridgeTable::operator()(CellNumber a, CellNumber b) const {
    const auto found = laid_.find(std::minmax(a, b));
    return found == laid_.end() ? 0 : found->second;
}

void BridgeTable::Set(CellNumber a, CellNumber b, int state) {
    const std::pair<CellNumber, CellNumber> cells = std::minmax(a, b);
    if (state == 0) {
        laid_.erase(cells);
    } else {
        laid_[cells] = state;
    }
}

int BridgeTable::CountAt(CellNumber id) const {
    int count = 0;
    for (const auto& [cells, bridges] : laid_)
        count += cells.first == id || cells.second == id ? bridges : 0;
    return count;
}

std::vector<BridgeTable::Laid> BridgeTable::InBothOrders() const {
    std::vector<Laid> all;
    for (const auto& [cells, bridges] : laid_) {
        all.push_back({cells.first, cells.second, bridges});
        all.push_back({cells.second, cells.first, bridges});
    }
    std::sort(all.begin(), all.end(),
              [](const Laid& x, const Laid& y) { return std::tie(x.a, x.b) < std::tie(y.a, y.b); });
    return all;
}

}  // namespace tidewalk
