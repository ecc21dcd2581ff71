// SPDX-License-Identifier: MIT
#include "model/list_box.h"

#include <algorithm>
#include <utility>

namespace tidewalk {

void ListBox::Clear() {
    fill_ = nullptr;
    lines_.clear();
    sorted_ = true;
    ++revision_;
}

void ListBox::Add(std::string line) {
    lines_.push_back(std::move(line));
    sorted_ = order_ == Order::AsAdded;
    ++revision_;
}

void ListBox::Defer(std::function<void(ListBox&)> fill) {
    Clear();
    fill_ = std::move(fill);
}

const std::vector<std::string>& ListBox::Lines() const {
    if (fill_) {
        const auto fill = std::exchange(fill_, nullptr);
        ListBox made(order_);
        fill(made);
        lines_ = std::move(made.lines_);
        sorted_ = made.sorted_;
    }
    if (!sorted_) {
        std::sort(lines_.begin(), lines_.end());
        sorted_ = true;
    }
    return lines_;
}

}  // namespace tidewalk
