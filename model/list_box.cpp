// SPDX-License-Identifier: MIT
#include "model/list_box.h"

#include <algorithm>
#include <utility>

namespace tidewalk {

void ListBox::Clear() {
    lines_.clear();
    sorted_ = true;
    ++revision_;
}

void ListBox::Add(std::string line) {
    lines_.push_back(std::move(line));
    sorted_ = order_ == Order::AsAdded;
    ++revision_;
}

const std::vector<std::string>& ListBox::Lines() const {
    if (!sorted_) {
        std::sort(lines_.begin(), lines_.end());
        sorted_ = true;
    }
    return lines_;
}

}  // namespace tidewalk
