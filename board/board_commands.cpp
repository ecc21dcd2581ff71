// SPDX-License-Identifier: MIT
#include "board/board_commands.h"

#include "board/check_bridges.h"
#include "board/show_board.h"
#include "game/job.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

void cmdzoom_Click(Game& game, int index) {
    if (!game.pictures.IsVisible() || game.job.BusyFlag()) return;
    const BoardLayout before = game.board.layout;
    int cellSize = before.CellSize;
    if (index == 0) cellSize = RoundHalfEven(cellSize * 0.9);
    if (index == 1) cellSize = RoundHalfEven(cellSize * 1.1);
    if (index == 2) cellSize = game.board.FittedCellSize;
    ZoomBoard(game, cellSize);
    RedrawBoard(game, false);
    FollowLayout(game.board, before);
    game.pictures.ShowOverlay();
}

void cmdundo_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    const auto record = game.board.history.Pop();
    if (!record) return;
    game.board.BridgeState.Set(record->a, record->b, record->state);
    RedrawBoard(game, false);
}

void cmdverify_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    BridgeCheck check = CheckBridgeCounts(game.board);
    game.List1.SetLines(std::move(check.lines));
    if (check.wrong) {
        game.board.Shape1 = {true, *check.wrong};
        game.pictures.ShowOverlay();
        game.pictures.StartMarkerTime();
        game.window.SetText(WindowText::Status, "Not done yet");
    } else {
        game.prompts.Show("All Done!", "vbhappy+vbok");
        game.events.DoEvents();
    }
}

void Timer1_Timer(Game& game) {
    game.pictures.StopMarkerTime();
    game.board.Shape1.visible = false;
    game.pictures.ShowOverlay();
}

void cmdviewcol_Press(Game& game) {
    if (!game.job.BusyFlag()) RedrawBoard(game, true);
}

void cmdviewcol_Release(Game& game) {
    if (!game.job.BusyFlag()) RedrawBoard(game, false);
}

void mnupuzreset_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const int answer = game.prompts.Show("Reset?", "vbYesNo");
    game.events.DoEvents();
    if (answer != kYes) return;
    if (game.collection.importedFrom.empty()) {
        LoadPuzzle(game, game.collection.CollectionPath, game.collection.PuzzleNumber);
    } else {
        ShowAgain(game, PuzzleShown(game));
    }
    game.window.SetText(WindowText::Status, "");
}

}  // namespace tidewalk
