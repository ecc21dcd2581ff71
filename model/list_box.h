// SPDX-License-Identifier: MIT
// The lines of a list box, without the box.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tidewalk {

/// A list of text lines that a window may show. A sorted list keeps its lines in plain byte order.
class ListBox {
 public:
    enum class Order { AsAdded, Sorted };

    explicit ListBox(Order order) : order_(order) {}

    /// Empties the list.
    void Clear();

    /// Adds a line: at the end, or at its place in a sorted list.
    void Add(std::string line);

    /// The lines, in their order.
    const std::vector<std::string>& Lines() const;

    /// Changes with every change of the lines, so that a window knows when to show them anew.
    std::uint64_t Revision() const { return revision_; }

 private:
    Order order_;
    std::uint64_t revision_ = 0;
    // Sorting waits for the first reader: adding n lines one by one would otherwise cost n squared moves.
    mutable bool sorted_ = true;
    mutable std::vector<std::string> lines_;
};

}  // namespace tidewalk
