// SPDX-License-Identifier: MIT
#include "model/puzzle.h"

namespace tidewalk {

int Puzzle::NumberTotal() const {
    int total = 0;
    for (CellNumber id = 1; id <= CellCount(); ++id)
        total += IslandAt(id);
    return total;
}

int Puzzle::IslandCount() const {
    int count = 0;
    for (CellNumber id = 1; id <= CellCount(); ++id)
        count += IslandAt(id) > 0 ? 1 : 0;
    return count;
}

std::string SizeText(BoardSize size) {
    return std::to_string(size.rows) + "x" + std::to_string(size.cols);
}

Puzzle WithoutLinks(const Puzzle& puzzle) {
    Puzzle bare = puzzle;
    bare.LinkList.clear();
    return bare;
}

}  // namespace tidewalk
