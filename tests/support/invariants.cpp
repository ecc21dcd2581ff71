// SPDX-License-Identifier: MIT
#include "support/invariants.h"

#include <algorithm>

namespace tidewalk::test {

namespace {

/// Looks at a game and keeps what is wrong with it.
struct Examination {
    const Game& game;
    const Board& board = game.board;
    const Puzzle& puzzle = game.board.puzzle;
    std::string findings = {};

    void Demand(bool holds, const char* what) {
        if (!holds) findings += std::string("not so: ") + what + "\n";
    }
    bool IsCell(CellNumber id) const { return id >= 1 && id <= puzzle.CellCount(); }
    bool IsIsland(CellNumber id) const { return IsCell(id) && puzzle.IslandAt(id) > 0; }
    bool IsIsland(int row, int col) const { return puzzle.IslandGrid(row, col) > 0; }
    bool IsPair(CellNumber a, CellNumber b) const {
        return IsIsland(a) && IsIsland(b) &&
               (puzzle.CellRow(a) == puzzle.CellRow(b)) != (puzzle.CellCol(a) == puzzle.CellCol(b));
    }

    /// What every index relies on, and what no job touches.
    void Always() {
        const bool none = puzzle.Rows == 0 && puzzle.Cols == 0;
        Demand(none || (puzzle.Rows >= 1 && puzzle.Rows <= kMaxSide && puzzle.Cols >= 1 && puzzle.Cols <= kMaxSide),
               "the board has a size");
        const Options& options = game.options;
        const auto isColour = [](Colour colour) { return colour <= kWhite; };
        Demand(std::all_of(options.SchemeColours.begin(), options.SchemeColours.end(), isColour),
               "colours are colours");
        for (const Colour colour : {options.NodeColour, options.GivenColour, options.ChainColour, options.GridColour})
            Demand(isColour(colour), "a colour of the board is one");
        Demand(options.NodeShape == 0 || options.NodeShape == 1, "islands have a shape");
        Demand(options.PrintLineWidth >= 1 && options.PrintLineWidth <= 50, "printed bridges have a width");
        const Collection& collection = game.collection;
        Demand(collection.PuzzleNumber >= 0 && collection.PuzzleCount >= 0, "puzzles count from 1");
        Demand(collection.PuzzleCount == 0 || !collection.CollectionPath.empty(), "puzzles have a file");
    }

    void Play() {
        for (const Link& link : puzzle.LinkList)
            Demand(IsCell(link.first) && IsCell(link.second) && link.state <= 2, "a link is on the board");
        for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders())
            Demand(IsPair(a, b) && (bridges == 1 || bridges == 2), "one or two bridges join two islands");
        for (const auto& [a, b] : board.Marks.All())
            Demand(IsPair(a, b) && board.BridgeState(a, b) == 0, "a mark stands where no bridge lies");
        // A move that came from no selected island names the cell 0.
        for (const auto& [a, b, state] : board.history.UndoList())
            Demand((a == 0 || IsIsland(a)) && IsIsland(b) && state >= kMarked && state <= 2,
                   "a move was made on this board");
    }

    void Marks() {
        const auto isNone = [](int row, int col) { return row == col && (row == 0 || row == -1); };
        Demand(isNone(board.HoverRow, board.HoverCol) || puzzle.OnBoard(board.HoverRow, board.HoverCol),
               "the pointer's cell is on the board");
        Demand(isNone(board.AnchorRow, board.AnchorCol) || IsIsland(board.AnchorRow, board.AnchorCol),
               "the selected cell is an island");
        Demand(SelectedIsland(board) == 0 || board.Line1.visible, "the selected island shows");
        Demand(board.FocusRow == 0 || IsIsland(board.FocusRow, board.FocusCol), "the focus is on an island");
        const auto& [marked, cell] = board.Shape1;
        Demand(!marked || puzzle.OnBoard(cell.row, cell.col), "the marker is around a cell");
        if (puzzle.CellCount() == 0) return;
        Demand(board.layout.CellSize >= kSmallestCell && board.layout.CellSize <= kLargestCell, "a cell has its size");
        Demand(board.layout.size == puzzle.Size(), "the layout is that of the puzzle");
    }
};

}  // namespace

std::string CheckInvariants(const Game& game) {
    Examination examination{game};
    examination.Always();
    // A job that is cut short by the end of the program leaves the board as it was in the middle of it.
    if (examination.findings.empty() && !game.job.BusyFlag() && !game.job.Ending()) {
        examination.Play();
        examination.Marks();
    }
    return examination.findings;
}

}  // namespace tidewalk::test
