// SPDX-License-Identifier: MIT
#include "board/board_mouse.h"

#include <algorithm>
#include <cmath>

#include "board/place_bridge.h"
#include "model/job.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// The 1-based index of the cell that a coordinate belongs to, kept within what an int holds.
int CellIndex(double at, int origin, int cell) {
    constexpr double kFarOff = 1e6;
    return static_cast<int>(std::floor(std::clamp((at - origin - cell / 2.0) / cell, -kFarOff, kFarOff))) + 2;
}

void HideLine1(Game& game) {
    game.Line1.visible = false;
    game.pictures.ShowOverlay();
}

void SetHover(Game& game, int row, int col) {
    game.HoverRow = row;
    game.HoverCol = col;
}

void SetAnchor(Game& game, int row, int col) {
    game.AnchorRow = row;
    game.AnchorCol = col;
}

/// The id of the selected island, or 0.
CellNumber AnchorId(const Game& game) {
    return game.OnBoard(game.AnchorRow, game.AnchorCol) ? game.CellId(game.AnchorRow, game.AnchorCol) : 0;
}

void SelectHovered(Game& game) {
    const CellNumber id = game.CellId(game.HoverRow, game.HoverCol);
    game.Line1.x1 = game.Line1.x2 = game.IslandX[id];
    game.Line1.y1 = game.Line1.y2 = game.IslandY[id];
    game.Line1.visible = true;
    game.pictures.ShowOverlay();
    SetAnchor(game, game.HoverRow, game.HoverCol);
}

/// Ends a move made on release, so that the click which follows finds nothing to do.
void EndMove(Game& game) {
    HideLine1(game);
    SetHover(game, 0, 0);
    SetAnchor(game, 0, 0);
}

void ReleaseWithShift(Game& game, CellNumber a, CellNumber b) {
    PushUndo(game, a, b);
    PlaceBridge(game, PlaceMode::Double, a, b, 1);
    EndMove(game);
}

void ReleaseRight(Game& game, CellNumber a, CellNumber b) {
    const CellPlace from = game.PlaceOf(a);
    const CellPlace to = game.PlaceOf(b);
    if (from.row != to.row && from.col != to.col) return;
    PushUndo(game, a, b);
    RemoveBridge(game, a, b);
    EndMove(game);
}

}  // namespace

CellPlace CellUnder(const Game& game, Point point) {
    return {CellIndex(point.y, game.OriginY, game.CellSize), CellIndex(point.x, game.OriginX, game.CellSize)};
}

void Picture1_MouseDown(Game& game, MouseButton button, Point cursor) {
    game.focusShows = false;
    game.dragging = !JobRuns(game) && button == MouseButton::Left;
    if (!game.dragging) return;
    game.DragOffsetX = RoundHalfEven(cursor.x - game.Picture1.left);
    game.DragOffsetY = RoundHalfEven(cursor.y - game.Picture1.top);
}

void Picture1_MouseMove(Game& game, bool leftHeld, Point point, Point cursor) {
    const auto [row, col] = CellUnder(game, point);
    if (game.OnBoard(row, col)) {
        SetHover(game, row, col);
        if (game.Line1.visible) {
            game.Line1.x2 = point.x;
            game.Line1.y2 = point.y;
            game.pictures.ShowOverlay();
        }
    }
    if (leftHeld && game.dragging) {
        game.Picture1.left = cursor.x - game.DragOffsetX;
        game.Picture1.top = cursor.y - game.DragOffsetY;
        game.pictures.PlacePicture1();
    }
}

void Picture1_MouseUp(Game& game, MouseButton button, bool shiftOnly, Point point) {
    if (JobRuns(game)) return;
    const auto [row, col] = CellUnder(game, point);
    if (!game.OnBoard(row, col) || game.IslandGrid(row, col) < 1) return;
    const CellNumber released = game.CellId(row, col);
    const CellNumber anchor = AnchorId(game);
    // Whoever goes on with the keyboard begins where the mouse was last.
    game.FocusRow = row;
    game.FocusCol = col;
    if (shiftOnly) {
        ReleaseWithShift(game, anchor, released);
    } else if (button == MouseButton::Right && anchor != 0) {
        ReleaseRight(game, anchor, released);
    }
}

void Picture1_Click(Game& game) {
    if (JobRuns(game)) return;
    if (!game.OnBoard(game.HoverRow, game.HoverCol) || game.IslandGrid(game.HoverRow, game.HoverCol) <= 0) {
        EndMove(game);
        return;
    }
    // The anchor is 0 when nothing was selected and -1 after a click beside the board.
    if (AnchorId(game) == 0) {
        SelectHovered(game);
        return;
    }
    if (game.AnchorRow != game.HoverRow || game.AnchorCol != game.HoverCol) {
        const CellNumber a = AnchorId(game);
        const CellNumber b = game.CellId(game.HoverRow, game.HoverCol);
        PushUndo(game, a, b);
        PlaceBridge(game, PlaceMode::Cycle, a, b, 1);
    }
    HideLine1(game);
    SetAnchor(game, 0, 0);
}

void Picture5_MouseUp(Game& game) {
    SetHover(game, -1, -1);
    SetAnchor(game, -1, -1);
}

}  // namespace tidewalk
