// SPDX-License-Identifier: MIT
// What the player asks of new puzzles, beside their size, and how it is remembered.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "game/choices.h"
#include "generator/puzzle_order.h"

namespace tidewalk {

/// What is chosen in the windows.
struct OrderChoice {
    bool oneSolution = true;     ///< as the player set it; a grade asks for it in any case
    std::optional<Grade> grade;  ///< nothing for any
    std::size_t character = 0;   ///< in `CharacterChoices`

    bool operator==(const OrderChoice&) const = default;
};

/// The grades to choose from, the one of any grade first.
inline constexpr std::array<std::optional<Grade>, 5> kGradeChoices{std::nullopt, Grade::VEasy, Grade::Easy, Grade::Hard,
                                                                   Grade::VHard};

/// "Any grade", "Very easy", "Easy", "Hard" or "Very hard".
std::string_view NameOf(std::optional<Grade> grade);

/// What is ordered of a puzzle of this size.
PuzzleOrder OrderFor(const OrderChoice& choice, BoardSize size);

/// What is ordered, for a tool tip: "Very hard, one solution" or "Any grade, any number of solutions".
std::string OrderText(const OrderChoice& choice);

/// New puzzles for the board and those for a file are ordered apart.
enum class OrderedFor { Board, File };

/// What was chosen last. At first that is one solution, any grade and no character.
OrderChoice ReadOrder(const Choices& choices, OrderedFor which);
void KeepOrder(Choices& choices, OrderedFor which, const OrderChoice& choice);

}  // namespace tidewalk
