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
}

void FollowLayout(Board& board, const BoardLayout& before) {
    const CellNumber selected = SelectedIsland(board);
    if (selected == 0) return;
    const auto moved = [](double at, int oldOrigin, int origin, double scale) {
        return origin + (at - oldOrigin) * scale;
    };
    const BoardLayout& layout = board.layout;
    const double scale = static_cast<double>(layout.CellSize) / before.CellSize;
    board.Line1.from = board.At(selected);
    board.Line1.to = {moved(board.Line1.to.x, before.OriginX, layout.OriginX, scale),
                      moved(board.Line1.to.y, before.OriginY, layout.OriginY, scale)};
}

void TakePuzzle(Board& board, const Puzzle& puzzle) {
    ++board.loadCount;
    board.puzzle = puzzle;
    board.OpenNeighbours.Fill({});
    board.BridgeState.Clear();
    board.history.Clear();
    board.guide = {};
    DropSelection(board);
    board.FocusRow = board.FocusCol = 0;
    board.Shape1.visible = false;
}

}  // namespace tidewalk
