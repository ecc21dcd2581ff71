// SPDX-License-Identifier: MIT
#include "solver/laid_bridges.h"

#include "model/numbers.h"

namespace tidewalk {

std::string_view RuleName(Rule rule) {
    switch (rule) {
        case Rule::OneToOnlyNeighbour:
            return "1-1 connect";
        case Rule::TwoToOnlyNeighbour:
            return "2 has only 1 connection";
        case Rule::FourToTwoNeighbours:
            return "4-2 connect";
        case Rule::SixToThreeNeighbours:
            return "6-3 connect";
        case Rule::OneOfThree:
            return "3-1 connect";
        case Rule::TwoOfThree:
            return "3-2 connect";
        case Rule::FirstOfThreeToTwo:
            return "3-2 connect part1";
        case Rule::SecondOfThreeToTwo:
            return "3-2 connect part2";
        case Rule::FirstOfFive:
            return "5-3 links connect";
        case Rule::OtherOfFive:
            return "5-3 link connect";
        case Rule::TwoBesideOne:
            return "2-1 connect";
        case Rule::TwoOverHalfUsedLinks:
            return "2-R1 connect";
        case Rule::ThreeBesideFullLink:
            return "3-3-O1 connect";
        case Rule::ThreeBesideTwoOnes:
            return "3-3-2 1s connect";
        case Rule::FourBesideOne:
            return "4-3-O1 connect";
        case Rule::Trial:
            break;
    }
    return "";
}

std::string Label(const LaidBridges& laid) {
    if (laid.rule != Rule::Trial) return std::string(RuleName(laid.rule));
    return Format(laid.a, "000") + "connected with" + Format(laid.b, "000");
}

}  // namespace tidewalk
