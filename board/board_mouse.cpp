// SPDX-License-Identifier: MIT
#include "board/board_mouse.h"

#include <utility>

#include "board/place_bridge.h"
#include "board/show_board.h"
#include "game/job.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Takes the cell at `point` for the one that a click is for; beside the cells a click is for none.
void HoverAt(Board& board, Point point) {
    const CellPlace cell = CellUnder(board.layout, point);
    const bool onBoard = board.puzzle.OnBoard(cell.row, cell.col);
    board.HoverRow = onBoard ? cell.row : 0;
    board.HoverCol = onBoard ? cell.col : 0;
}

void Select(Board& board, CellPlace cell) {
    board.AnchorRow = cell.row;
    board.AnchorCol = cell.col;
    const Point at = board.layout.At(cell);
    board.Line1 = {true, at, at};
}

/// Ends a move made on release, so that the click which follows finds nothing to do.
void EndMove(Game& game) {
    DropSelection(game.board);
    RedrawBoard(game, false);
    ForgetStatus(game);
    game.pictures.ShowOverlay();
}

void ReleaseWithShift(Game& game, CellNumber a, CellNumber b) {
    PushUndo(game.board, a, b);
    PlaceBridge(game.board, PlaceMode::Double, a, b, 1);
    EndMove(game);
}

void ReleaseRight(Game& game, CellNumber a, CellNumber b) {
    const CellPlace from = game.board.puzzle.PlaceOf(a);
    const CellPlace to = game.board.puzzle.PlaceOf(b);
    if (from.row != to.row && from.col != to.col) return;
    PushUndo(game.board, a, b);
    game.board.BridgeState.Set(a, b, 0);
    EndMove(game);
}

}  // namespace

void Picture1_MouseDown(Game& game, MouseButton button, Point cursor) {
    Board& board = game.board;
    if (std::exchange(board.focusShows, false)) game.pictures.ShowOverlay();
    board.dragging = !game.job.BusyFlag() && button == MouseButton::Left;
    if (!board.dragging) return;
    board.DragOffsetX = RoundHalfEven(cursor.x - board.layout.Picture1.left);
    board.DragOffsetY = RoundHalfEven(cursor.y - board.layout.Picture1.top);
}

void Picture1_MouseMove(Game& game, bool leftHeld, Point point, Point cursor) {
    Board& board = game.board;
    HoverAt(board, point);
    if (board.Line1.visible && board.HoverRow > 0) {
        board.Line1.to = point;
        game.pictures.ShowOverlay();
    }
    if (leftHeld && board.dragging) {
        board.layout.Picture1.left = cursor.x - board.DragOffsetX;
        board.layout.Picture1.top = cursor.y - board.DragOffsetY;
        game.pictures.PlacePicture();
    }
}

void Picture1_MouseUp(Game& game, MouseButton button, bool shiftOnly, Point point) {
    if (game.job.BusyFlag()) return;
    HoverAt(game.board, point);
    ReleaseOn(game, button, shiftOnly, {game.board.HoverRow, game.board.HoverCol});
}

void Picture1_Click(Game& game) {
    ClickOn(game, {game.board.HoverRow, game.board.HoverCol});
}

void ReleaseOn(Game& game, MouseButton button, bool shiftOnly, CellPlace cell) {
    Board& board = game.board;
    if (game.job.BusyFlag() || board.puzzle.IslandGrid(cell.row, cell.col) < 1) return;
    const CellNumber released = board.puzzle.CellId(cell);
    const CellNumber selected = SelectedIsland(board);
    // Whoever goes on with the keyboard begins where the mouse was last.
    board.FocusRow = cell.row;
    board.FocusCol = cell.col;
    if (shiftOnly) {
        ReleaseWithShift(game, selected, released);
    } else if (button == MouseButton::Right && selected != 0) {
        ReleaseRight(game, selected, released);
    }
}

void ClickOn(Game& game, CellPlace cell) {
    if (game.job.BusyFlag()) return;
    Board& board = game.board;
    const CellNumber selected = SelectedIsland(board);
    if (board.puzzle.IslandGrid(cell.row, cell.col) < 1) {
        DropSelection(board);
    } else if (selected == 0) {
        // The anchor is 0 when nothing was selected and -1 after a click beside the board.
        Select(board, cell);
    } else {
        const CellNumber clicked = board.puzzle.CellId(cell);
        if (clicked != selected) {
            PushUndo(board, selected, clicked);
            PlaceBridge(board, PlaceMode::Cycle, selected, clicked, 1);
            RedrawBoard(game, false);
            ForgetStatus(game);
        }
        board.AnchorRow = board.AnchorCol = 0;
        board.Line1.visible = false;
    }
    game.pictures.ShowOverlay();
}

void Picture5_MouseUp(Game& game) {
    Board& board = game.board;
    board.HoverRow = board.HoverCol = -1;
    board.AnchorRow = board.AnchorCol = -1;
    board.Line1.visible = false;
    game.pictures.ShowOverlay();
}

}  // namespace tidewalk
