// SPDX-License-Identifier: MIT
#include "solver/difficulty.h"

namespace tidewalk {

std::string_view DifficultyName(int score) {
    if (score >= 11) return "VHard";
    if (score < 1) return "VEasy";
    return score < 6 ? "Easy" : "Hard";
}

}  // namespace tidewalk
