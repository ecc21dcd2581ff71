// SPDX-License-Identifier: MIT
// How hard a puzzle is for people.
#pragma once

#include <optional>

#include "model/may_go_on.h"
#include "model/puzzle.h"
#include "solver/count_solutions.h"
#include "techniques/deduction.h"

namespace tidewalk {

/// How often a path needs what is harder than counting.
struct Efforts {
    int cutOffs = 0;
    int waysOut = 0;
    int near = 0;  ///< suppositions that contradict themselves within one island's reach
    int far = 0;   ///< those that have to be followed further
    int trials = 0;

    void Add(const Deduction& deduction);
};

/// The figure that `DifficultyName` names: the hardest technique of the path sets where it starts, and how often that
/// is needed where it ends. The table of its weights is in docs/grades.md.
int ScoreOf(const Efforts& efforts);

/// The grade of a board with exactly this one solution. Nothing when `mayGoOn` said no before it was known.
std::optional<int> GradeBoard(const Archipelago& board, const SpanBridges& only, const MayGoOn& mayGoOn);

/// What can be said of a puzzle before anybody solves it.
struct Assessment {
    std::optional<int> solutions;  ///< 0, 1, or 2 for several; nothing when that was not found out
    std::optional<int> score;      ///< only with exactly one solution
};

/// The same of a board whose solutions were looked for: up to two of them, or nothing when that came to no end.
Assessment AssessSolutions(const Archipelago& board, const std::optional<std::vector<SpanBridges>>& found,
                           const MayGoOn& mayGoOn);

/// Counts the solutions of the puzzle's numbers and grades it if there is one. `mayGoOn` is asked before every choice
/// and every step; what is not known when it says no stays open.
Assessment AssessPuzzle(const Puzzle& puzzle, const MayGoOn& mayGoOn);

}  // namespace tidewalk
