// SPDX-License-Identifier: MIT
// The seam to work that goes on beside the window.
#pragma once

#include <functional>

#include "techniques/grade.h"

namespace tidewalk {

class Background {
 public:
    virtual ~Background() = default;

    /// Finds out what can be said of a puzzle, however long that takes, and then calls `done` between two events. What
    /// was asked before and is not known yet will not be told any more.
    virtual void Assess(const Puzzle& puzzle, std::function<void(const Assessment&)> done) = 0;
};

}  // namespace tidewalk
