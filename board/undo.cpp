// SPDX-License-Identifier: MIT
#include "board/undo.h"

#include "board/drawing.h"
#include "model/job.h"
#include "model/load_puzzle.h"

namespace tidewalk {

void cmdundo_Click(Game& game) {
    if (game.UndoList.empty() || JobRuns(game)) return;
    const UndoRecord record = game.UndoList.front();
    game.BridgeState.Set(record.a, record.b, record.state);
    RedrawBoard(game, false);
    game.UndoList.pop_front();
    ++game.undoRevision;
}

void cmdviewcol_Press(Game& game) {
    if (!JobRuns(game)) ShowSolution(game);
}

void cmdviewcol_Release(Game& game) {
    if (!JobRuns(game)) RedrawBoard(game, false);
}

void mnupuzreset_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const int answer = game.prompts.Show("Reset?", "vbYesNo");
    game.events.DoEvents();
    if (answer != kYes) return;
    LoadPuzzle(game, game.CollectionPath, game.PuzzleNumber);
    game.window.SetText(Control::pb, "");
}

}  // namespace tidewalk
