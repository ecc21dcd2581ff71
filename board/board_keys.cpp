// SPDX-License-Identifier: MIT
#include "board/board_keys.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "board/after_move.h"
#include "board/board_mouse.h"
#include "board/magnify.h"
#include "board/place_bridge.h"

namespace tidewalk {

namespace {

/// The first island from the cell `id` on, in steps of 1 or -1; 0 when there is none.
CellNumber IslandFrom(const Puzzle& puzzle, CellNumber id, int step) {
    for (; id >= 1 && id <= puzzle.CellCount(); id += step) {
        if (puzzle.IslandAt(id) > 0) return id;
    }
    return 0;
}

void FocusSomeIsland(Game& game) {
    const CellNumber selected = SelectedIsland(game.board);
    FocusIsland(game, selected != 0 ? selected : IslandFrom(game.board.puzzle, 1, 1));
}

/// The island that a key which makes no move leads to; 0 for none.
CellNumber Destination(const Puzzle& puzzle, BoardKey key, CellNumber from) {
    switch (key) {
        case BoardKey::First:
            return IslandFrom(puzzle, 1, 1);
        case BoardKey::Last:
            return IslandFrom(puzzle, puzzle.CellCount(), -1);
        case BoardKey::Previous:
            return IslandFrom(puzzle, from - 1, -1);
        case BoardKey::Next:
            return IslandFrom(puzzle, from + 1, 1);
        default:
            return IslandTowards(puzzle, key, from);
    }
}

/// Joins the selected island with the focused one, if they are two, as the release of a button over it would.
void ReleaseOnFocused(Game& game, MouseButton button, bool shift) {
    const CellNumber selected = SelectedIsland(game.board);
    const CellNumber focused = FocusedIsland(game.board);
    if (selected == 0 || selected == focused) return;
    ReleaseOn(game, button, shift, game.board.puzzle.PlaceOf(focused));
}

}  // namespace

CellNumber IslandTowards(const Puzzle& puzzle, BoardKey key, CellNumber from) {
    const auto [row, col] = puzzle.PlaceOf(from);
    const bool alongRow = key == BoardKey::Left || key == BoardKey::Right;
    const int sign = key == BoardKey::Left || key == BoardKey::Up ? -1 : 1;
    CellNumber found = from;
    std::tuple<bool, int, int> best;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        if (puzzle.IslandAt(id) <= 0) continue;
        const auto [otherRow, otherCol] = puzzle.PlaceOf(id);
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
    Board& board = game.board;
    board.FocusRow = board.puzzle.CellRow(id);
    board.FocusCol = board.puzzle.CellCol(id);
    BringIntoView(game, board.puzzle.PlaceOf(id));
    if (board.Line1.visible) board.Line1.to = board.At(id);
    game.pictures.ShowOverlay();
}

void Picture1_GotFocus(Game& game) {
    if (game.job.BusyFlag()) return;
    game.board.focusShows = true;
    if (FocusedIsland(game.board) == 0) FocusSomeIsland(game);
    game.pictures.ShowOverlay();
}

void Picture1_KeyDown(Game& game, BoardKey key) {
    if (game.job.BusyFlag()) return;
    game.board.focusShows = true;
    const CellNumber focused = FocusedIsland(game.board);
    if (focused == 0) {
        FocusSomeIsland(game);
    } else if (key == BoardKey::Lay) {
        ClickOn(game, game.board.puzzle.PlaceOf(focused));
    } else if (key == BoardKey::LayDouble) {
        ReleaseOnFocused(game, MouseButton::Left, true);
    } else if (key == BoardKey::Remove) {
        ReleaseOnFocused(game, MouseButton::Right, false);
    } else {
        FocusIsland(game, Destination(game.board.puzzle, key, focused));
    }
    game.pictures.ShowOverlay();
}

void LayTowards(Game& game, BoardKey key) {
    Board& board = game.board;
    const CellNumber focused = FocusedIsland(board);
    if (game.job.BusyFlag() || focused == 0) return;
    board.focusShows = true;
    const CellNumber to = IslandTowards(board.puzzle, key, focused);
    if (to != focused && SeeEachOther(board.puzzle, focused, to)) {
        LayBridge(board, PlaceMode::Cycle, focused, to);
        DropSelection(board);
        AfterMove(game);
    }
    game.pictures.ShowOverlay();
}

bool LetGo(Game& game) {
    if (game.job.BusyFlag() || SelectedIsland(game.board) == 0) return false;
    DropSelection(game.board);
    game.pictures.ShowOverlay();
    return true;
}

}  // namespace tidewalk
