// SPDX-License-Identifier: MIT
#include "board/board_commands.h"

#include <utility>

#include "board/after_move.h"
#include "board/check_bridges.h"
#include "board/keep_play.h"
#include "board/magnify.h"
#include "board/place_bridge.h"
#include "board/show_board.h"
#include "game/job.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Frames a cell for a second and says what is wrong there.
void FrameFault(Game& game, CellPlace cell, const std::string& status) {
    game.board.Shape1 = {true, cell};
    BringIntoView(game, cell);
    game.pictures.ShowOverlay();
    game.pictures.StartMarkerTime();
    game.window.SetText(WindowText::Status, status);
}

/// The cell size that a zoom button asks for, before it is brought within its limits.
int ZoomedCellSize(const Board& board, int index) {
    if (index == 0) return RoundHalfEven(board.layout.CellSize * 0.9);
    if (index == 1) return RoundHalfEven(board.layout.CellSize * 1.1);
    return board.FittedCellSize;
}

}  // namespace

void cmdzoom_Click(Game& game, int index) {
    if (!game.pictures.IsVisible() || game.job.BusyFlag()) return;
    ZoomTo(game, ZoomedCellSize(game.board, index));
}

bool ZoomWouldShow(const Game& game, int index) {
    const BoardLayout& now = game.board.layout;
    const BoardLayout after = LayoutBoard(game.board.puzzle.Size(), ZoomedCellSize(game.board, index), RoomOf(game));
    return after.CellSize != now.CellSize || after.Picture1 != now.Picture1;
}

void cmdundo_Click(Game& game) {
    GoToMoment(game, game.board.history.Done() - 1);
}

void cmdredo_Click(Game& game) {
    GoToMoment(game, game.board.history.Done() + 1);
}

void GoToMoment(Game& game, int moment) {
    Board& board = game.board;
    if (game.job.BusyFlag() || moment < 0 || moment > board.history.Count() || moment == board.history.Done()) return;
    while (board.history.Done() > moment) {
        const UndoRecord record = board.history.Undo()->record;
        SetPairState(board, record.a, record.b, record.state);
    }
    while (board.history.Done() < moment) {
        const PlayedMove move = *board.history.Redo();
        SetPairState(board, move.record.a, move.record.b, move.after);
    }
    AfterMove(game);
}

void PointAtPair(Game& game, CellNumber a, CellNumber b) {
    const Board::PointedPair before = std::exchange(game.board.pointed, {a, b});
    if (before != game.board.pointed) game.pictures.ShowOverlay();
}

void mnucheckpoint_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    game.board.history.SetCheckpoint();
    game.window.SetText(WindowText::Status, "Checkpoint set");
    KeepPlay(game);
}

void mnubacktocheckpoint_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    if (const auto moment = game.board.history.BackToCheckpoint()) {
        GoToMoment(game, *moment);
    } else {
        game.window.SetText(WindowText::Status, "There is no checkpoint to go back to");
    }
}

void cmdverify_Click(Game& game) {
    if (game.job.BusyFlag()) return;
    BridgeCheck check = CheckBridgeCounts(game.board);
    game.List1.SetLines(std::move(check.lines));
    if (check.wrong) return FrameFault(game, *check.wrong, "Not done yet");
    const std::optional<BoardFault> fault = FaultBeyondNumbers(game.board);
    if (fault && game.options.StrictCheck) return FrameFault(game, fault->cell, "Not done yet: " + fault->text);
    const std::string status = fault ? "All numbers are right, but " + fault->text : "";
    if (fault) FrameFault(game, fault->cell, status);
    game.prompts.Show("All Done!", "vbhappy+vbok");
    game.events.DoEvents();
    // The frame's time has gone by behind the box.
    if (fault) FrameFault(game, fault->cell, status);
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
    game.board.startsAfresh = true;
    if (game.collection.importedFrom.empty()) {
        LoadPuzzle(game, game.collection.CollectionPath, game.collection.PuzzleNumber);
    } else {
        ShowAgain(game, PuzzleShown(game));
    }
    game.board.startsAfresh = false;
    game.window.SetText(WindowText::Status, "");
}

}  // namespace tidewalk
