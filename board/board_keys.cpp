// SPDX-License-Identifier: MIT
#include "board/board_keys.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "board/board_mouse.h"
#include "model/job.h"

namespace tidewalk {

namespace {

bool IsArrow(BoardKey key) {
    return key == BoardKey::Left || key == BoardKey::Right || key == BoardKey::Up || key == BoardKey::Down;
}

/// The first island from the cell `id` on, in steps of 1 or -1; 0 when there is none.
CellNumber IslandFrom(const Game& game, CellNumber id, int step) {
    for (; id >= 1 && id <= game.CellCount; id += step) {
        if (game.IslandAt(id) > 0) return id;
    }
    return 0;
}

CellNumber SelectedIsland(const Game& game) {
    return game.OnBoard(game.AnchorRow, game.AnchorCol) ? game.CellId(game.AnchorRow, game.AnchorCol) : 0;
}

void FocusSomeIsland(Game& game) {
    const CellNumber selected = SelectedIsland(game);
    FocusIsland(game, selected != 0 ? selected : IslandFrom(game, 1, 1));
}

/// The island that a key without a move leads to; 0 for none.
CellNumber Destination(const Game& game, BoardKey key, CellNumber from) {
    switch (key) {
        case BoardKey::First:
            return IslandFrom(game, 1, 1);
        case BoardKey::Last:
            return IslandFrom(game, game.CellCount, -1);
        case BoardKey::Previous:
            return IslandFrom(game, from - 1, -1);
        case BoardKey::Next:
            return IslandFrom(game, from + 1, 1);
        default:
            return IsArrow(key) ? IslandTowards(game, key, from) : 0;
    }
}

/// Clicks the focused island. The pointer keeps its own cell: it may lie over another island.
void ClickFocused(Game& game) {
    const CellPlace hover{game.HoverRow, game.HoverCol};
    game.HoverRow = game.FocusRow;
    game.HoverCol = game.FocusCol;
    Picture1_Click(game);
    game.HoverRow = hover.row;
    game.HoverCol = hover.col;
}

/// Joins the selected island with the focused one, if they are two, as the release of a button over it would.
void ReleaseOnFocused(Game& game, MouseButton button, bool shift) {
    const CellNumber selected = SelectedIsland(game);
    const CellNumber focused = FocusedIsland(game);
    if (selected == 0 || selected == focused) return;
    const Point at{static_cast<double>(game.IslandX[focused]), static_cast<double>(game.IslandY[focused])};
    Picture1_MouseUp(game, button, shift, at);
}

/// How far the board has to move so that the cell around `at`, in the container, lies within `room`. Boards that were
/// fitted leave more than the margin, so that they stay in their place.
double Shift(double at, double cell, double room) {
    constexpr double kMargin = 0.6;  // the cell's half, and a little for the frame around it
    const double margin = std::min(kMargin * cell, room / 2);
    return std::clamp(at, margin, room - margin) - at;
}

/// Moves the board in its container just so far that the island shows.
void BringIntoView(Game& game, CellNumber id) {
    const Surface::Extent room = game.pictures.Picture5Extent();
    const double right = Shift(game.Picture1.left + game.IslandX[id], game.CellSize, room.width);
    const double down = Shift(game.Picture1.top + game.IslandY[id], game.CellSize, room.height);
    if (right == 0 && down == 0) return;
    game.Picture1.left += right;
    game.Picture1.top += down;
    game.pictures.PlacePicture1();
}

}  // namespace

CellNumber FocusedIsland(const Game& game) {
    if (!game.OnBoard(game.FocusRow, game.FocusCol) || game.IslandGrid(game.FocusRow, game.FocusCol) <= 0) return 0;
    return game.CellId(game.FocusRow, game.FocusCol);
}

CellNumber IslandTowards(const Game& game, BoardKey key, CellNumber from) {
    const auto [row, col] = game.PlaceOf(from);
    const bool alongRow = key == BoardKey::Left || key == BoardKey::Right;
    const int sign = key == BoardKey::Left || key == BoardKey::Up ? -1 : 1;
    CellNumber found = from;
    std::tuple<bool, int, int> best;
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        if (game.IslandAt(id) <= 0) continue;
        const auto [otherRow, otherCol] = game.PlaceOf(id);
        const int along = sign * (alongRow ? otherCol - col : otherRow - row);
        const int across = std::abs(alongRow ? otherRow - row : otherCol - col);
        if (along <= 0) continue;
        // What is in line comes before what is not, however near that is.
        const std::tuple<bool, int, int> rank{across != 0, along * along + across * across, across};
        if (found != from && rank >= best) continue;
        found = id;
        best = rank;
    }
    return found;
}

void FocusIsland(Game& game, CellNumber id) {
    if (id == 0) return;
    game.FocusRow = game.CellRow[id];
    game.FocusCol = game.CellCol[id];
    BringIntoView(game, id);
    if (game.Line1.visible) {
        game.Line1.x2 = game.IslandX[id];
        game.Line1.y2 = game.IslandY[id];
    }
    game.pictures.ShowOverlay();
}

void Picture1_GotFocus(Game& game) {
    if (JobRuns(game)) return;
    game.focusShows = true;
    if (FocusedIsland(game) == 0) FocusSomeIsland(game);
    game.pictures.ShowOverlay();
}

void Picture1_KeyDown(Game& game, BoardKey key) {
    if (JobRuns(game)) return;
    game.focusShows = true;
    const CellNumber focused = FocusedIsland(game);
    if (focused == 0) {
        FocusSomeIsland(game);
    } else if (key == BoardKey::Lay) {
        ClickFocused(game);
    } else if (key == BoardKey::LayDouble) {
        ReleaseOnFocused(game, MouseButton::Left, true);
    } else if (key == BoardKey::Remove) {
        ReleaseOnFocused(game, MouseButton::Right, false);
    } else {
        FocusIsland(game, Destination(game, key, focused));
    }
    game.pictures.ShowOverlay();
}

bool DropSelection(Game& game) {
    if (JobRuns(game) || SelectedIsland(game) == 0) return false;
    game.AnchorRow = game.AnchorCol = 0;
    game.Line1.visible = false;
    game.pictures.ShowOverlay();
    return true;
}

}  // namespace tidewalk
