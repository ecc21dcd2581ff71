// SPDX-License-Identifier: MIT
// How far the player has been told the next step, or the whole way.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "techniques/hint.h"

namespace tidewalk {

/// Hints come press by press, explanations step by step. What is told stands beside the board until the next move.
struct Guidance {
    Hint hint;
    int presses = 0;  ///< of the hint that is being told; 0 for none

    std::vector<Step> steps;     ///< of the explanation, empty for none
    std::uint64_t revision = 0;  ///< changes with every change of `steps`
    int step = -1;               ///< the step that the board shows; the number of steps for the end; -1 for none

    std::string text;                ///< what is told beside the board
    std::uint64_t textRevision = 0;  ///< the history's, when it was told

    /// Nothing is told any more.
    void Clear() {
        const std::uint64_t next = revision + 1;
        *this = {};
        revision = next;
    }
};

}  // namespace tidewalk
