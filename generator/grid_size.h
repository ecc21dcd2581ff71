// SPDX-License-Identifier: MIT
// The sizes of puzzles to make.
#pragma once

#include <string_view>

#include "model/grid.h"
#include "model/random_source.h"

namespace tidewalk {

/// The size that is asked for. Sides are whole numbers of any size, 0 where the text gives none.
struct WantedSize {
    bool random = false;  ///< each side is drawn
    BoardSize size;

    bool operator==(const WantedSize&) const = default;
};

/// Reads a size: "9" is 9 by 9, "9x12" or "9X12" 9 rows and 12 columns, nothing but blanks a random size.
WantedSize ParseGridSize(std::string_view text);

/// True when both sides are 7..25.
bool IsCreatableSize(BoardSize size);

/// A random size, each side 7..24 and never 25.
BoardSize DrawRandomSize(RandomSource& random);

/// The size that is wanted, drawn if it is to be random.
BoardSize SizeOf(const WantedSize& wanted, RandomSource& random);

}  // namespace tidewalk
