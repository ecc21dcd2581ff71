// SPDX-License-Identifier: MIT
#include "solver/difficulty.h"

namespace tidewalk {

Grade GradeOf(int score) {
    if (score >= 11) return Grade::VHard;
    if (score < 1) return Grade::VEasy;
    return score < 6 ? Grade::Easy : Grade::Hard;
}

std::string_view NameOf(Grade grade) {
    switch (grade) {
        case Grade::VEasy:
            return "VEasy";
        case Grade::Easy:
            return "Easy";
        case Grade::Hard:
            return "Hard";
        case Grade::VHard:
            break;
    }
    return "VHard";
}

std::string_view WordsFor(Grade grade) {
    if (grade == Grade::VEasy) return "Very easy";
    return grade == Grade::VHard ? "Very hard" : NameOf(grade);
}

std::string_view DifficultyName(int score) {
    return NameOf(GradeOf(score));
}

}  // namespace tidewalk
