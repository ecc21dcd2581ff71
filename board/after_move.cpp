// SPDX-License-Identifier: MIT
#include "board/after_move.h"

#include "board/keep_play.h"
#include "board/mistakes.h"
#include "board/show_board.h"
#include "game/job.h"

namespace tidewalk {

void AfterMove(Game& game) {
    Board& board = game.board;
    const bool wasSolved = board.solved;
    board.solved = IsSolved(board.puzzle, board.BridgeState);
    KeepPlay(game);
    RedrawBoard(game, false);
    game.pictures.ShowOverlay();
    ForgetStatus(game);
    TellTrouble(game);
    game.playTime.SetSolved(board.solved, game.clock.Milliseconds());
    if (!board.solved || wasSolved) return;
    const int seconds = game.playTime.Seconds(game.clock.Milliseconds());
    game.window.SetText(WindowText::Status, game.options.ShowTime ? "Solved (" + TimeText(seconds) + ")" : "Solved");
}

}  // namespace tidewalk
