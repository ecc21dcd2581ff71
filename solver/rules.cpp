// SPDX-License-Identifier: MIT
#include "solver/rules.h"

#include <array>

#include "solver/connect_islands.h"
#include "solver/neighbours.h"

namespace tidewalk {

namespace {

/// One island as the rules see it: its open neighbours are those at the start of the visit, needs and capacities are
/// read when they are asked for.
struct Visit {
    SolverBoard& board;
    CellNumber self;
    NeighbourList open;

    CellNumber A() const { return open[0]; }
    CellNumber B() const { return open[1]; }
    CellNumber C() const { return open[2]; }
    int Need(CellNumber island) const { return board.IslandGrid[island]; }
    int Capacity(CellNumber island) const { return GetLinkValue(board, self, island); }
    void Lay(Rule rule, CellNumber island, int n) { ConnectIslands(board, rule, self, island, n); }
};

// Each rule returns true when it decides the island, whether or not it laid a bridge.

/// The only neighbour takes the last bridge.
bool OneToOnlyNeighbour(Visit& visit) {
    visit.Lay(Rule::OneToOnlyNeighbour, visit.A(), 1);
    return true;
}

/// The only neighbour takes both bridges, if the link is still free.
bool TwoToOnlyNeighbour(Visit& visit) {
    if (visit.Capacity(visit.A()) >= 2) visit.Lay(Rule::TwoToOnlyNeighbour, visit.A(), 2);
    return true;
}

/// A need of twice the neighbours doubles every link. A link that is in use already ends the rule.
bool DoubleEveryLink(Visit& visit, Rule rule) {
    for (const CellNumber neighbour : visit.open) {
        if (visit.Capacity(neighbour) < 2) break;
        visit.Lay(rule, neighbour, 2);
    }
    return true;
}

bool FourToTwoNeighbours(Visit& visit) {
    return DoubleEveryLink(visit, Rule::FourToTwoNeighbours);
}

bool SixToThreeNeighbours(Visit& visit) {
    return DoubleEveryLink(visit, Rule::SixToThreeNeighbours);
}

/// Of two neighbours one needs a single bridge, so the other takes two.
bool ThreeBesideOne(Visit& visit) {
    const bool firstNeedsOne = visit.Need(visit.A()) == 1;
    if (!firstNeedsOne && visit.Need(visit.B()) != 1) return true;
    visit.Lay(Rule::OneOfThree, firstNeedsOne ? visit.A() : visit.B(), 1);
    visit.Lay(Rule::TwoOfThree, firstNeedsOne ? visit.B() : visit.A(), 2);
    return true;
}

/// Two neighbours take at least one bridge each. The rule before it has decided such an island already.
bool ThreeToTwoNeighbours(Visit& visit) {
    visit.Lay(Rule::FirstOfThreeToTwo, visit.A(), 1);
    visit.Lay(Rule::SecondOfThreeToTwo, visit.B(), 1);
    return true;
}

/// Five bridges over three links put at least one on each.
bool FiveToThreeNeighbours(Visit& visit) {
    visit.Lay(Rule::FirstOfFive, visit.A(), 1);
    visit.Lay(Rule::OtherOfFive, visit.B(), 1);
    visit.Lay(Rule::OtherOfFive, visit.C(), 1);
    return true;
}

/// A neighbour that needs one bridge leaves at least one for the other.
bool TwoBesideOne(Visit& visit) {
    if (visit.Need(visit.A()) != 1 && visit.Need(visit.B()) != 1) return true;
    visit.Lay(Rule::TwoBesideOne, visit.Need(visit.A()) != 1 ? visit.A() : visit.B(), 1);
    return true;
}

/// Two links that take one more bridge each. The rule before it has decided such an island already.
bool TwoOverHalfUsedLinks(Visit& visit) {
    if (visit.Capacity(visit.A()) != 1 || visit.Capacity(visit.B()) != 1) return true;
    visit.Lay(Rule::TwoOverHalfUsedLinks, visit.A(), 1);
    visit.Lay(Rule::TwoOverHalfUsedLinks, visit.B(), 1);
    return true;
}

/// With one of three links full and the others free, each of those takes at least one bridge.
bool ThreeBesideFullLink(Visit& visit) {
    const std::array<std::array<int, 3>, 3> cases{{{0, 1, 2}, {1, 0, 2}, {2, 0, 1}}};
    for (const auto& [full, first, second] : cases) {
        if (visit.Capacity(visit.open[full]) != 0 || visit.Capacity(visit.open[first]) != 2 ||
            visit.Capacity(visit.open[second]) != 2) {
            continue;
        }
        visit.Lay(Rule::ThreeBesideFullLink, visit.open[first], 1);
        visit.Lay(Rule::ThreeBesideFullLink, visit.open[second], 1);
        return true;
    }
    return false;
}

/// Two of three neighbours need one bridge each, so the third takes at least one.
bool ThreeBesideTwoOnes(Visit& visit) {
    const bool one[3] = {visit.Need(visit.A()) == 1, visit.Need(visit.B()) == 1, visit.Need(visit.C()) == 1};
    CellNumber third = 0;
    if (one[0] && one[1]) {
        third = visit.C();
    } else if (one[1] && one[2]) {
        third = visit.A();
    } else if (one[0] && one[2]) {
        third = visit.B();
    }
    if (third == 0) return false;
    visit.Lay(Rule::ThreeBesideTwoOnes, third, 1);
    return true;
}

/// One of three neighbours needs a single bridge, so each of the others takes at least one.
bool FourBesideOne(Visit& visit) {
    for (int one = 0; one < 3; ++one) {
        if (visit.Need(visit.open[one]) != 1) continue;
        for (int other = 0; other < 3; ++other) {
            if (other != one) visit.Lay(Rule::FourBesideOne, visit.open[other], 1);
        }
        break;
    }
    return true;
}

/// A rule and the islands that it is for: those of this need with so many open neighbours.
struct RuleCase {
    int need;
    int neighbours;
    bool (*apply)(Visit&);
};

/// In the order in which they are tried. Two of them are never reached; they keep their places.
constexpr std::array<RuleCase, 12> kRules{{
    {1, 1, OneToOnlyNeighbour},
    {2, 1, TwoToOnlyNeighbour},
    {4, 2, FourToTwoNeighbours},
    {6, 3, SixToThreeNeighbours},
    {3, 2, ThreeBesideOne},
    {3, 2, ThreeToTwoNeighbours},
    {5, 3, FiveToThreeNeighbours},
    {2, 2, TwoBesideOne},
    {2, 2, TwoOverHalfUsedLinks},
    {3, 3, ThreeBesideFullLink},
    {3, 3, ThreeBesideTwoOnes},
    {4, 3, FourBesideOne},
}};

void VisitIsland(SolverBoard& board, CellNumber id) {
    const int need = board.IslandGrid[id];
    if (need < 1) return;
    Visit visit{board, id, board.OpenNeighbours[id]};
    for (const RuleCase& rule : kRules) {
        if (rule.need == need && rule.neighbours == visit.open.Count() && rule.apply(visit)) return;
    }
}

}  // namespace

void ApplyRules(SolverBoard& board) {
    // What a rule does follows from what it reads, so an island about which nothing has changed since a rule left it
    // alone would be left alone again.
    for (CellNumber id = board.awaitingRules.First(); id != 0; id = board.awaitingRules.NextFrom(id + 1)) {
        board.awaitingRules.Erase(id);
        VisitIsland(board, id);
    }
    RefreshStaleLists(board);
}

}  // namespace tidewalk
