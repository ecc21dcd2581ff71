// SPDX-License-Identifier: MIT
#include "board/board.h"

namespace tidewalk {

const BridgeTable& Board::ShownBridges() const {
    const Guide* const shown = ShownGuide();
    return shown != nullptr && shown->position ? *shown->position : BridgeState;
}

CellNumber SelectedIsland(const Board& board) {
    return board.puzzle.OnBoard(board.AnchorRow, board.AnchorCol)
               ? board.puzzle.CellId(board.AnchorRow, board.AnchorCol)
               : 0;
}

CellNumber FocusedIsland(const Board& board) {
    const bool onIsland = board.puzzle.IslandGrid(board.FocusRow, board.FocusCol) > 0;
    return onIsland ? board.puzzle.CellId(board.FocusRow, board.FocusCol) : 0;
}

void DropSelection(Board& board) {
    board.HoverRow = board.HoverCol = 0;
    board.AnchorRow = board.AnchorCol = 0;
    board.Line1.visible = false;
    board.pressIsOver = board.pressIsOver || board.press.island != 0;
    board.press = {};
}

void FollowLayout(Board& board, const BoardLayout& before) {
    const CellNumber selected = SelectedIsland(board);
    if (selected == 0) return;
    const BoardLayout& layout = board.layout;
    const double scale = static_cast<double>(layout.CellSize) / before.CellSize;
    const Point to = board.Line1.to;
    board.Line1.from = board.At(selected);
    board.Line1.to = {layout.OriginX + (to.x - before.OriginX) * scale,
                      layout.OriginY + (to.y - before.OriginY) * scale};
}

void TakePuzzle(Board& board, const Puzzle& puzzle) {
    ++board.loadCount;
    board.puzzle = puzzle;
    board.OpenNeighbours.Fill({});
    board.BridgeState.Clear();
    board.Marks.Clear();
    board.history.Clear();
    board.guide = {};
    board.pointed = {};
    DropSelection(board);
    board.FocusRow = board.FocusCol = 0;
    board.Shape1.visible = false;
    board.solved = false;
    board.playNote.clear();
}

}  // namespace tidewalk
