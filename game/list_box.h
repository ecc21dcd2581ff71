// SPDX-License-Identifier: MIT
// The lines of a list box, without the box.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tidewalk {

/// Text lines that a window may show. A sorted list shows them in plain byte order.
class ListBox {
 public:
    enum class Order { AsAdded, Sorted };

    explicit ListBox(Order order) : order_(order) {}

    void Clear() { SetLines({}); }
    void SetLines(std::vector<std::string> lines);

    const std::vector<std::string>& Lines() const { return lines_; }

    /// Changes with every change of the lines, so that a window knows when to show them anew.
    std::uint64_t Revision() const { return revision_; }

 private:
    Order order_;
    std::uint64_t revision_ = 0;
    std::vector<std::string> lines_;
};

}  // namespace tidewalk
