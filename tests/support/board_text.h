// SPDX-License-Identifier: MIT
// Boards written as text, a string a row.
#pragma once

#include <string>
#include <vector>

#include "model/grid.h"

namespace tidewalk::test {

/// The numbers of a board; anything but a digit is water.
inline Grid<int> Numbers(const std::vector<std::string>& rows) {
    Grid<int> numbers;
    int row = 0;
    for (const std::string& text : rows) {
        ++row;
        int col = 0;
        for (const char c : text)
            numbers(row, ++col) = c >= '0' && c <= '9' ? c - '0' : 0;
    }
    return numbers;
}

}  // namespace tidewalk::test
