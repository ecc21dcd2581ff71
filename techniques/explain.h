// SPDX-License-Identifier: MIT
// The whole way to a solution, step by step.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "model/may_go_on.h"
#include "solver/count_solutions.h"
#include "techniques/deduction.h"

namespace tidewalk {

/// One step of a way, told.
struct Step {
    Deduction deduction;
    std::string text;
};

/// Is given each deduction before it is applied, with the position that it was drawn from.
using TakeDeduction = std::function<void(const Position&, const Deduction&)>;

/// Draws one deduction after the other from the empty board, always the easiest. Where no technique helps, the search
/// tells a span from `only`, the board's one solution; without one (null) the way ends there.
///
/// Whether every island has its bridges in the end; not when `mayGoOn` said no before.
bool WalkPath(const Archipelago& board, const SpanBridges* only, const MayGoOn& mayGoOn, const TakeDeduction& take);

/// The steps of that way, each with its sentences.
std::vector<Step> ExplainPath(const Archipelago& board, const SpanBridges* only, const MayGoOn& mayGoOn);

/// What the search tells where nothing else helps: an open span with more bridges in `solution` than lie there.
/// `position` is not solved and says nothing that the solution contradicts.
Deduction FindByTrial(const Position& position, const SpanBridges& solution);

}  // namespace tidewalk
