// SPDX-License-Identifier: MIT
// Names for how hard a puzzle is.
#pragma once

#include <string_view>

namespace tidewalk {

enum class Grade { VEasy, Easy, Hard, VHard };

/// `VEasy` below 1, `Easy` up to 5, `Hard` up to 10, `VHard` from 11 on. The score is that of `techniques/grade.h`.
Grade GradeOf(int score);

/// "VEasy", "Easy", "Hard" or "VHard".
std::string_view NameOf(Grade grade);

/// The same in words for people: "Very easy", "Easy", "Hard" or "Very hard".
std::string_view WordsFor(Grade grade);

/// The name of the score's grade.
std::string_view DifficultyName(int score);

}  // namespace tidewalk
