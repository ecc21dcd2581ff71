// SPDX-License-Identifier: MIT
#include "solver/solver_board.h"

#include "solver/neighbours.h"

namespace tidewalk {

void SolverBoard::Reset(const Puzzle& puzzle) {
    Rows = puzzle.Rows;
    Cols = puzzle.Cols;
    CellCount = puzzle.CellCount();
    CellNumber id = 0;
    for (int row = 1; row <= Rows; ++row) {
        for (int col = 1; col <= Cols; ++col) {
            ++id;
            CellRow[id] = row;
            CellCol[id] = col;
            const int number = puzzle.IslandAt(id);
            GivenGrid[id] = IslandGrid[id] = number > 0 ? number : -1;
        }
    }
    CrossGrid.Fill(Cross::Free);
    ConnectedList.Fill({});
    BridgesLaid = 0;
    ConnectCount = 0;
    laid.clear();
    choicePoints.clear();
    overdrawnLinks = 0;
    BuildNeighbourLists(*this);
}

Puzzle PuzzleOf(const SolverBoard& board) {
    Puzzle puzzle({board.Rows, board.Cols});
    for (CellNumber id = 1; id <= board.CellCount; ++id) {
        if (board.GivenGrid[id] > 0) puzzle.SetIsland(id, board.GivenGrid[id]);
    }
    puzzle.LinkList = board.LinkList.Links();
    return puzzle;
}

}  // namespace tidewalk
