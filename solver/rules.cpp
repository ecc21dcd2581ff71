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
    Game& game;
    CellNumber self;
    NeighbourList open;

    CellNumber A() const { return open[0]; }
    CellNumber B() const { return open[1]; }
    CellNumber C() const { return open[2]; }
    int Need(CellNumber island) const { return game.IslandAt(island); }
    int Capacity(CellNumber island) const { return GetLinkValue(game, self, island); }
    void Lay(std::string_view rule, CellNumber island, int n) { ConnectIslands(game, rule, self, island, n); }
};

// Each rule returns true when it decides the island, whether or not it laid a bridge.

/// The only neighbour takes the last bridge.
bool OneToOnlyNeighbour(Visit& visit) {
    visit.Lay("1-1 connect", visit.A(), 1);
    return true;
}

/// The only neighbour takes both bridges, if the link is still free.
bool TwoToOnlyNeighbour(Visit& visit) {
    if (visit.Capacity(visit.A()) >= 2) visit.Lay("2 has only 1 connection", visit.A(), 2);
    return true;
}

/// A need of twice the neighbours doubles every link. A link that is in use already ends the rule.
bool DoubleEveryLink(Visit& visit, std::string_view rule) {
    for (const CellNumber neighbour : visit.open) {
        if (visit.Capacity(neighbour) < 2) break;
        visit.Lay(rule, neighbour, 2);
    }
    return true;
}

bool FourToTwoNeighbours(Visit& visit) {
    return DoubleEveryLink(visit, "4-2 connect");
}

bool SixToThreeNeighbours(Visit& visit) {
    return DoubleEveryLink(visit, "6-3 connect");
}

/// Of two neighbours one needs a single bridge, so the other takes two.
bool ThreeBesideOne(Visit& visit) {
    const bool firstNeedsOne = visit.Need(visit.A()) == 1;
    if (!firstNeedsOne && visit.Need(visit.B()) != 1) return true;
    visit.Lay("3-1 connect", firstNeedsOne ? visit.A() : visit.B(), 1);
    visit.Lay("3-2 connect", firstNeedsOne ? visit.B() : visit.A(), 2);
    return true;
}

/// Two neighbours take at least one bridge each. The rule before it has decided such an island already.
bool ThreeToTwoNeighbours(Visit& visit) {
    visit.Lay("3-2 connect part1", visit.A(), 1);
    visit.Lay("3-2 connect part2", visit.B(), 1);
    return true;
}

/// Five bridges over three links put at least one on each.
bool FiveToThreeNeighbours(Visit& visit) {
    visit.Lay("5-3 links connect", visit.A(), 1);
    visit.Lay("5-3 link connect", visit.B(), 1);
    visit.Lay("5-3 link connect", visit.C(), 1);
    return true;
}

/// A neighbour that needs one bridge leaves at least one for the other.
bool TwoBesideOne(Visit& visit) {
    if (visit.Need(visit.A()) != 1 && visit.Need(visit.B()) != 1) return true;
    visit.Lay("2-1 connect", visit.Need(visit.A()) != 1 ? visit.A() : visit.B(), 1);
    return true;
}

/// Two links that take one more bridge each. The rule before it has decided such an island already.
bool TwoOverHalfUsedLinks(Visit& visit) {
    if (visit.Capacity(visit.A()) != 1 || visit.Capacity(visit.B()) != 1) return true;
    visit.Lay("2-R1 connect", visit.A(), 1);
    visit.Lay("2-R1 connect", visit.B(), 1);
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
        visit.Lay("3-3-O1 connect", visit.open[first], 1);
        visit.Lay("3-3-O1 connect", visit.open[second], 1);
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
    visit.Lay("3-3-2 1s connect", third, 1);
    return true;
}

/// One of three neighbours needs a single bridge, so each of the others takes at least one.
bool FourBesideOne(Visit& visit) {
    for (int one = 0; one < 3; ++one) {
        if (visit.Need(visit.open[one]) != 1) continue;
        for (int other = 0; other < 3; ++other) {
            if (other != one) visit.Lay("4-3-O1 connect", visit.open[other], 1);
        }
        break;
    }
    return true;
}

/// A rule and the islands that it is for.
struct Rule {
    int need;
    int neighbours;
    bool (*apply)(Visit&);
};

/// In the order in which they are tried. Two of them are never reached; they keep their places.
constexpr std::array<Rule, 12> kRules{{
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

void VisitIsland(Game& game, CellNumber id) {
    const int need = game.IslandAt(id);
    if (need < 1) return;
    Visit visit{game, id, game.OpenNeighbours(game.CellRow[id], game.CellCol[id])};
    for (const Rule& rule : kRules) {
        if (rule.need == need && rule.neighbours == visit.open.Count() && rule.apply(visit)) return;
    }
}

}  // namespace

void ApplyRules(Game& game) {
    // What a rule does follows from what it reads, so an island about which nothing has changed since a rule left it
    // alone would be left alone again.
    for (CellNumber id = game.awaitingRules.First(); id != 0; id = game.awaitingRules.NextFrom(id + 1)) {
        game.awaitingRules.Erase(id);
        VisitIsland(game, id);
    }
    RefreshStaleLists(game);
}

}  // namespace tidewalk
