// SPDX-License-Identifier: MIT
// What a deduction says, in sentences for people.
#pragma once

#include <string>

#include "techniques/deduction.h"
#include "techniques/hint.h"

namespace tidewalk {

/// An island as people find it: "the 5 at row 3, column 7".
std::string IsleText(const Archipelago& board, int isle);

/// Tells a deduction and its reason with the numbers of this very case. `position` is the one it was drawn from, before
/// it is applied.
std::string Sentence(const Position& position, const Deduction& deduction);

/// Says of bridges that no solution has so many, or of a mark that a bridge goes there all the same.
std::string MistakeText(const Archipelago& board, const PlayedPair& wrong);

}  // namespace tidewalk
