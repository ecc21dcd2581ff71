// SPDX-License-Identifier: MIT
// The tables on which a puzzle is solved.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/cell_set.h"
#include "model/cell_words.h"
#include "model/grid.h"
#include "model/puzzle.h"
#include "solver/laid_bridges.h"
#include "solver/link_table.h"

namespace tidewalk {

/// What never changes on a board: who sees whom, and over which links.
struct Sights {
    static constexpr int kDirections = 4;  ///< lower column, higher column, lower row, higher row

    struct Sight {
        std::uint16_t island = 0;  ///< the island seen, or 0
        std::uint16_t link = 0;    ///< its first entry in the link list
    };

    PerCell<std::array<Sight, kDirections>> from;  ///< by island
    PerCell<std::uint16_t> acrossRow;              ///< by water cell: the link between its left and right islands, or 0
    PerCell<std::uint16_t> acrossColumn;  ///< by water cell: the link between its upper and lower islands, or 0
    CellSet islands;
    int islandCount = 0;
};

/// A number of bridges to one neighbour.
struct Move {
    CellNumber neighbour = 0;
    int bridges = 0;
};

/// An island that still needs bridges and the moves that are left to try with it.
struct StatusLine {
    int need = 0;
    int neighbours = 0;
    CellNumber island = 0;
    std::array<Move, 8> moves{};
    int firstMove = 0;  ///< the moves before it were taken already
    int moveCount = 0;

    bool HasMoves() const { return firstMove < moveCount; }
    Move TakeMove() { return moves[static_cast<std::size_t>(firstMove++)]; }
};

/// Where the trial search can go on when its present way is a dead end.
struct ChoicePoint {
    StatusLine line;        ///< with the moves that were not taken yet
    std::size_t laid = 0;   ///< how many calls of `ConnectIslands` came before
    CellSet awaitingRules;  ///< whom the rules had still to look at again
};

/// A puzzle's numbers and every bridge laid on them so far. It is some 55 KB; one that is used again for another puzzle
/// need not be made anew.
///
/// Cells are named by their ids, 1..`CellCount`, row by row. The routines on a board stand in the files beside this
/// one.
struct SolverBoard {
    SolverBoard() = default;
    explicit SolverBoard(const Puzzle& puzzle) { Reset(puzzle); }

    /// Takes the puzzle's numbers and no bridge. Everything that was on the board before is gone.
    void Reset(const Puzzle& puzzle);

    int Rows = 0;
    int Cols = 0;
    int CellCount = 0;
    PerCell<int> CellRow;
    PerCell<int> CellCol;

    PerCell<int> GivenGrid;                 ///< the numbers of the islands; -1 for water
    PerCell<int> IslandGrid;                ///< what an island still needs, 0 when it is finished; -1 for water
    PerCell<NeighbourList> OpenNeighbours;  ///< by island: whom it can still be bridged to, as of the last refresh
    PerCell<Cross> CrossGrid;               ///< what runs over a cell
    PerCell<JoinedList> ConnectedList;
    LinkTable LinkList;
    int BridgesLaid = 0;   ///< a double bridge counts 2
    int ConnectCount = 0;  ///< calls of `ConnectIslands` since the driver last set it to 0

    std::vector<LaidBridges> laid;          ///< every call of `ConnectIslands` that was not taken back, in order
    std::vector<ChoicePoint> choicePoints;  ///< of the trial search, the newest last

    /// The choice points of the trial search that are open.
    int BranchCount() const { return static_cast<int>(choicePoints.size()); }

    // What follows spares the solver the rescan of the whole board after every bridge.

    Sights sights;
    /// By link: over how many of its cells a bridge runs across it.
    std::array<std::uint8_t, LinkTable::kCapacity + 1> blockedCells{};
    CellSet staleLists;      ///< islands whose open list the next refresh has to make anew
    CellSet awaitingRules;   ///< islands about which something changed since the rules last looked at them
    CellSet awaitingCheck;   ///< islands about which something changed since the last check for contradictions
    int overdrawnLinks = 0;  ///< how often a link was asked for more than it could take

    CellPlace PlaceOf(CellNumber id) const { return {CellRow[id], CellCol[id]}; }
};

/// The puzzle with the links of the board: after a solve, with its solution.
Puzzle PuzzleOf(const SolverBoard& board);

}  // namespace tidewalk
