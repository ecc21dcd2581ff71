// SPDX-License-Identifier: MIT
// The seam to where play is kept from run to run.
#pragma once

#include <optional>
#include <string>

#include "board/history.h"
#include "model/puzzle.h"

namespace tidewalk {

/// What was played on a puzzle. Its bridges and marks follow from the moves.
struct KeptPlay {
    History history;
    int seconds = 0;      ///< spent on it
    bool solved = false;  ///< it was, at least once

    bool operator==(const KeptPlay&) const = default;
};

/// Keeps play by the numbers of a puzzle, so that it follows a puzzle from file to file. No command depends on it.
class PlayStore {
 public:
    virtual ~PlayStore() = default;

    /// What was kept; nothing when that is nothing.
    virtual std::optional<KeptPlay> Find(const Puzzle& puzzle) = 0;

    /// What is kept of the puzzle is not asked for: until it is found, nothing takes its place.
    virtual void LeaveUnseen(const Puzzle& puzzle) = 0;

    /// Keeps the moves in the place of those that were kept before, within a second. A puzzle that was solved stays so.
    virtual void Keep(const Puzzle& puzzle, const History& history, bool solved) = 0;

    /// Adds time to what was spent on the puzzle; its moves stay as they are.
    virtual void AddTime(const Puzzle& puzzle, int seconds) = 0;

    /// Forgets everything about the puzzle.
    virtual void Forget(const Puzzle& puzzle) = 0;

    /// Makes sure that all of it is kept now.
    virtual void Flush() = 0;

    /// Tells, once, what went wrong meanwhile; "" when nothing did that was not told already.
    virtual std::string TakeTrouble() = 0;
};

}  // namespace tidewalk
