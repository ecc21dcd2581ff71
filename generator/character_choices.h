// SPDX-License-Identifier: MIT
// Characters to choose from, with names that mean something to players.
#pragma once

#include <string_view>
#include <vector>

#include "generator/puzzle_order.h"

namespace tidewalk {

/// A character by name. What is many or few depends on the board's size.
struct CharacterChoice {
    std::string_view key;   ///< one word, under which the choice is remembered
    std::string_view name;  ///< "Like published puzzles"
    std::string_view hint;  ///< what such puzzles look like, in a sentence
    Character (*of)(BoardSize size);
};

/// All of them; the first one leaves everything as it grows.
const std::vector<CharacterChoice>& CharacterChoices();

}  // namespace tidewalk
