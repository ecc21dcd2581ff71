// SPDX-License-Identifier: MIT
#include "game/list_box.h"

#include <algorithm>
#include <utility>

namespace tidewalk {

void ListBox::SetLines(std::vector<std::string> lines) {
    lines_ = std::move(lines);
    if (order_ == Order::Sorted) std::sort(lines_.begin(), lines_.end());
    ++revision_;
}

}  // namespace tidewalk
