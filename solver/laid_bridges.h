// SPDX-License-Identifier: MIT
// The steps of a solve: which bridges were laid, and by which rule.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace tidewalk {

/// Who asks for bridges: a rule of deduction, or the trial search.
enum class Rule : std::uint8_t {
    OneToOnlyNeighbour,
    TwoToOnlyNeighbour,
    FourToTwoNeighbours,
    SixToThreeNeighbours,
    OneOfThree,  ///< the single bridge of a 3 beside a 1
    TwoOfThree,  ///< the double bridge of the same
    FirstOfThreeToTwo,
    SecondOfThreeToTwo,
    FirstOfFive,
    OtherOfFive,
    TwoBesideOne,
    TwoOverHalfUsedLinks,
    ThreeBesideFullLink,
    ThreeBesideTwoOnes,
    FourBesideOne,
    Trial
};

/// The rule's own name, such as "1-1 connect"; "" for a trial, whose label names its islands.
std::string_view RuleName(Rule rule);

/// One call of `ConnectIslands`, with what it changed, so that the step can be explained and taken back.
struct LaidBridges {
    Rule rule = Rule::Trial;
    std::uint8_t bridges = 0;  ///< 1 or 2
    std::uint16_t a = 0;
    std::uint16_t b = 0;
    std::uint16_t link = 0;      ///< the entry of the link list that was used, or 0
    std::uint8_t linkState = 0;  ///< its state before
    bool joined = false;         ///< the islands were not joined before
    bool crossed = false;        ///< cells between them were free before
};

/// The text that names the step: the rule's name, or for a trial its islands, "012connected with045".
std::string Label(const LaidBridges& laid);

}  // namespace tidewalk
