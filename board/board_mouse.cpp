// SPDX-License-Identifier: MIT
#include "board/board_mouse.h"

#include <cmath>
#include <utility>

#include "board/after_move.h"
#include "board/place_bridge.h"
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
    AfterMove(game);
    game.pictures.ShowOverlay();
}

void ReleaseWithShift(Game& game, CellNumber a, CellNumber b) {
    LayBridge(game.board, PlaceMode::Double, a, b);
    EndMove(game);
}

void ReleaseRight(Game& game, CellNumber a, CellNumber b) {
    const CellPlace from = game.board.puzzle.PlaceOf(a);
    const CellPlace to = game.board.puzzle.PlaceOf(b);
    if (from.row != to.row && from.col != to.col) return;
    ClearOrMark(game.board, a, b);
    EndMove(game);
}

/// One more bridge where one lies over a cell of water, as if its islands had been clicked; false where none lies.
bool GoOnWithBridgeOver(Game& game, CellPlace cell) {
    const auto pair = BridgeOver(game.board, cell);
    if (!pair) return false;
    LayBridge(game.board, PlaceMode::Cycle, pair->first, pair->second);
    EndMove(game);
    return true;
}

void RemoveBridgeOver(Game& game, CellPlace cell) {
    const auto pair = BridgeOver(game.board, cell);
    if (!pair) return;
    ClearOrMark(game.board, pair->first, pair->second);
    EndMove(game);
}

CellPlace HoveredCell(const Board& board) {
    return {board.HoverRow, board.HoverCol};
}

/// The left button goes down on an island, or the board begins to be moved.
void PressLeft(Game& game, Point cursor) {
    Board& board = game.board;
    const CellPlace cell = HoveredCell(board);
    if (board.puzzle.IslandGrid(cell.row, cell.col) > 0) {
        board.press = {board.puzzle.CellId(cell), cursor, false};
        return;
    }
    board.dragging = true;
    board.press.at = cursor;
    board.DragOffsetX = RoundHalfEven(cursor.x - board.layout.Picture1.left);
    board.DragOffsetY = RoundHalfEven(cursor.y - board.layout.Picture1.top);
}

/// From now on the press is no click any more: the island is selected, and the rubber band follows.
void BeginDrawing(Board& board) {
    board.press.drawing = true;
    Select(board, board.puzzle.PlaceOf(board.press.island));
}

bool IsFarFrom(Point a, Point b, double distance) {
    return std::abs(a.x - b.x) + std::abs(a.y - b.y) >= distance;
}

/// The button is released where the bridge that was drawn should end.
void EndDrawing(Game& game, bool shift) {
    Board& board = game.board;
    const CellPlace cell = HoveredCell(board);
    const bool onIsland = board.puzzle.IslandGrid(cell.row, cell.col) > 0;
    const CellNumber to = onIsland ? board.puzzle.CellId(cell) : 0;
    const CellNumber from = std::exchange(board.press, {}).island;
    if (to == 0 || to == from) {
        DropSelection(board);
        game.pictures.ShowOverlay();
        return;
    }
    LayBridge(board, shift ? PlaceMode::Double : PlaceMode::Cycle, from, to);
    board.FocusRow = cell.row;
    board.FocusCol = cell.col;
    EndMove(game);
}

}  // namespace

void CallOffPress(Game& game) {
    Board& board = game.board;
    board.dragging = false;
    if (!board.press.drawing) return;
    DropSelection(board);
    game.pictures.ShowOverlay();
}

void Picture1_MouseDown(Game& game, MouseButton button, Point point, Point cursor) {
    Board& board = game.board;
    if (std::exchange(board.focusShows, false)) game.pictures.ShowOverlay();
    const bool callsOff = board.press.island != 0 && button != MouseButton::Left;
    CallOffPress(game);
    if (button == MouseButton::Left) board.pressIsOver = false;
    board.pressIsOver = board.pressIsOver || callsOff;
    board.otherIsOver = callsOff;
    board.press = {};
    if (game.job.BusyFlag() || button != MouseButton::Left) return;
    HoverAt(board, point);
    PressLeft(game, cursor);
}

void Picture1_MouseMove(Game& game, bool leftHeld, Point point, Point cursor) {
    Board& board = game.board;
    // The release has gone elsewhere, to a window that has come up say.
    if (!leftHeld && board.press.drawing) CallOffPress(game);
    HoverAt(board, point);
    const bool pressed = leftHeld && board.press.island != 0 && !game.job.BusyFlag();
    if (pressed && !board.press.drawing && IsFarFrom(cursor, board.press.at, game.pictures.DragDistance()))
        BeginDrawing(board);
    if (board.Line1.visible && board.HoverRow > 0) {
        board.Line1.to = point;
        game.pictures.ShowOverlay();
    }
    if (leftHeld && board.dragging) {
        if (IsFarFrom(cursor, board.press.at, game.pictures.DragDistance())) board.pressIsOver = true;
        board.layout.Picture1.left = cursor.x - board.DragOffsetX;
        board.layout.Picture1.top = cursor.y - board.DragOffsetY;
        game.pictures.PlacePicture();
    }
}

void Picture1_MouseUp(Game& game, MouseButton button, bool shiftOnly, Point point) {
    if (game.job.BusyFlag()) return CallOffPress(game);
    Board& board = game.board;
    HoverAt(board, point);
    if (button == MouseButton::Left && board.press.drawing) return EndDrawing(game, shiftOnly);
    board.dragging = false;
    board.press = {};
    bool& isOver = button == MouseButton::Left ? board.pressIsOver : board.otherIsOver;
    if (std::exchange(isOver, false)) {
        board.HoverRow = board.HoverCol = 0;
    } else {
        ReleaseOn(game, button, shiftOnly, HoveredCell(board));
    }
}

void Picture1_Click(Game& game) {
    ClickOn(game, HoveredCell(game.board));
}

void ReleaseOn(Game& game, MouseButton button, bool shiftOnly, CellPlace cell) {
    Board& board = game.board;
    if (game.job.BusyFlag()) return;
    if (board.puzzle.IslandGrid(cell.row, cell.col) < 1) {
        if (button == MouseButton::Right && SelectedIsland(board) == 0) RemoveBridgeOver(game, cell);
        return;
    }
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
        if (selected != 0 || !GoOnWithBridgeOver(game, cell)) DropSelection(board);
    } else if (selected == 0) {
        // The anchor is 0 when nothing was selected and -1 after a click beside the board.
        Select(board, cell);
    } else {
        const CellNumber clicked = board.puzzle.CellId(cell);
        if (clicked != selected) {
            LayBridge(board, PlaceMode::Cycle, selected, clicked);
            AfterMove(game);
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
    board.dragging = false;
    board.press = {};
    game.pictures.ShowOverlay();
}

}  // namespace tidewalk
