// SPDX-License-Identifier: MIT
// Which puzzles of a collection somebody wants to see.
#pragma once

#include <algorithm>
#include <optional>

#include "model/puzzle.h"
#include "solver/difficulty.h"
#include "techniques/grade.h"

namespace tidewalk {

/// How far a player has come with a puzzle.
enum class PlayState { Untouched, Begun, Solved };

/// What is not asked for does not matter.
struct PuzzleFilter {
    struct Sides {
        int least;
        int most;
        bool operator==(const Sides&) const = default;
    };
    std::optional<Sides> sides;  ///< of the longer side
    std::optional<Grade> grade;
    std::optional<PlayState> state;

    bool TakesAll() const { return !sides && !grade && !state; }
    /// The same without the grade, which takes long to find out.
    bool TakesAtOnce(BoardSize size, PlayState of) const {
        const int side = std::max(size.rows, size.cols);
        return (!sides || (side >= sides->least && side <= sides->most)) && (!state || *state == of);
    }
    /// A puzzle with no solution or several has no grade.
    bool TakesGrade(const Assessment& of) const { return !grade || (of.score && GradeOf(*of.score) == *grade); }

    bool operator==(const PuzzleFilter&) const = default;
};

}  // namespace tidewalk
