// SPDX-License-Identifier: MIT
// What somebody wants a booklet of puzzles to be.
#pragma once

#include <string>

#include "drawing/printed_board.h"

namespace tidewalk {

/// 3.5 mm and 2.9 mm: the numbers are 6 and 5 points high then, the smallest print that is still read with ease.
inline constexpr int kSmallestPuzzleCell = 200;
inline constexpr int kSmallestSolutionCell = 165;

struct BookletDesign {
    enum class Solutions {
        None,
        Beneath,  ///< each under its puzzle
        AtEnd     ///< small, on pages of their own
    };
    enum class Order { Number, Size, Grade };

    static constexpr int kAsManyAsFit = 0;
    /// What `perPage` may be.
    static constexpr int kPerPage[] = {1, 2, 4, 6, 9, kAsManyAsFit};

    std::string title;
    std::string author;
    int perPage = 4;
    IslandShape shape = IslandShape::Circle;
    Solutions solutions = Solutions::AtEnd;
    Order order = Order::Number;
    bool cover = true;
    bool rules = true;  ///< a page that tells them, with an example
    bool pageNumbers = true;
    // What stands above each puzzle:
    bool numbers = true;  ///< that of the puzzle in its collection
    bool sizes = true;
    bool grades = true;
    int lineWidth = 4;  ///< the pen of the bridges, in `kPensPerInch`

    bool NeedsGrades() const { return grades || order == Order::Grade; }
    /// Solutions at the end are found by their numbers.
    bool ShowsNumbers() const { return numbers || solutions == Solutions::AtEnd; }
    /// What stands on top of every page but the cover: the title, and the author where no cover names him.
    std::string Header() const {
        if (cover || author.empty()) return title;
        return title.empty() ? author : title + " \u00B7 " + author;
    }
    bool operator==(const BookletDesign&) const = default;
};

/// The design with title and author in one line each: blanks for control characters, none at the ends and no two
/// beside each other.
BookletDesign Tidied(BookletDesign design);

}  // namespace tidewalk
