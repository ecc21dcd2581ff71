// SPDX-License-Identifier: MIT
// Who sees whom: the open neighbours of every island and the candidate links between islands.
#pragma once

#include "solver/solver_board.h"

namespace tidewalk {

/// Builds the open neighbours from `IslandGrid` alone, as if there were no bridges, and the list of candidate links:
/// every pair of neighbours twice, once from each end, own id first, with a capacity of 2.
///
/// In `IslandGrid` a value above 0 is an island, 0 an island that is finished and blocks the view, less is water.
void BuildNeighbourLists(SolverBoard& board);

/// Makes the open neighbours of every island anew from `IslandGrid`, `CrossGrid` and the capacities of the links.
void RefreshNeighbours(SolverBoard& board);

/// Does the same for the islands that something has changed for since the last refresh.
void RefreshStaleLists(SolverBoard& board);

/// How many bridges may still be laid between `a` and `b`, 0..2; 0 for a pair that is no candidate.
int GetLinkValue(const SolverBoard& board, CellNumber a, CellNumber b);

/// Takes `n` from the capacity of the link between `a` and `b`, down to 0 at the least, and adds `n` to `BridgesLaid`.
void UseLink(SolverBoard& board, CellNumber a, CellNumber b, int n);

/// Notes that what `island` still needs has changed: the rules and the checks have to look again at it and at everyone
/// who might see it.
void TouchIsland(SolverBoard& board, CellNumber island);

/// Notes that the open neighbours of everyone who might see `island` have to be made anew.
void SpoilViewsOf(SolverBoard& board, CellNumber island);

}  // namespace tidewalk
