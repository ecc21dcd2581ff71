// SPDX-License-Identifier: MIT
#include "board/keep_play.h"

#include <algorithm>
#include <utility>

#include "board/mistakes.h"
#include "board/place_bridge.h"
#include "board/show_board.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

bool IsState(int state) {
    return state >= kMarked && state <= 2;
}

/// Whether a move with these cells can be made on the puzzle: one that was refused names any, others two islands in
/// line.
bool CanBeMade(const Puzzle& puzzle, const PlayedMove& move) {
    const auto [a, b, state] = move.record;
    const auto isCell = [&](CellNumber id) { return id >= 0 && id <= puzzle.CellCount(); };
    if (!isCell(a) || !isCell(b) || !IsState(state) || !IsState(move.after)) return false;
    if (!move.ChangedAnything()) return true;
    return a > 0 && b > 0 && a != b && puzzle.IslandAt(a) > 0 && puzzle.IslandAt(b) > 0 &&
           (puzzle.CellRow(a) == puzzle.CellRow(b) || puzzle.CellCol(a) == puzzle.CellCol(b));
}

/// The history as far as it can have been made on the puzzle.
History Sound(const Puzzle& puzzle, const History& history) {
    std::vector<PlayedMove> moves = history.Moves();
    moves.erase(
        std::find_if_not(moves.begin(), moves.end(), [&](const PlayedMove& move) { return CanBeMade(puzzle, move); }),
        moves.end());
    const int count = static_cast<int>(moves.size());
    std::vector<int> checkpoints = history.Checkpoints();
    std::erase_if(checkpoints, [count](int moment) { return moment < 0 || moment > count; });
    return {std::move(moves), std::clamp(history.Done(), 0, count), std::move(checkpoints)};
}

}  // namespace

void KeepPlay(Game& game) {
    const Board& board = game.board;
    if (!game.options.KeepPlay || board.puzzle.IslandCount() == 0) return;
    game.plays.Keep(board.puzzle, board.history, board.solved);
    KeepTime(game);
}

void KeepTime(Game& game) {
    const int seconds = game.playTime.TakeNew(game.clock.Milliseconds());
    const bool isPlayed = game.options.KeepPlay && game.board.puzzle.IslandCount() > 0;
    if (isPlayed && seconds > 0) game.plays.AddTime(game.board.puzzle, seconds);
}

void Form_Activate(Game& game, bool active) {
    game.playTime.SetActive(active, game.clock.Milliseconds());
    if (!active) KeepTime(game);
}

std::string TimeText(int seconds) {
    constexpr int kMinute = 60;
    constexpr int kHour = 3600;
    const std::string tail = Format(seconds / kMinute % kMinute, "00") + ":" + Format(seconds % kMinute, "00");
    if (seconds >= kHour) return NumText(seconds / kHour) + ":" + tail;
    return NumText(seconds / kMinute) + ":" + Format(seconds % kMinute, "00");
}

void BringBackPlay(Game& game) {
    Board& board = game.board;
    std::optional<KeptPlay> kept;
    if (std::exchange(board.startsAfresh, false)) {
        game.plays.Forget(board.puzzle);
    } else if (board.puzzle.IslandCount() > 0) {
        if (game.options.KeepPlay) {
            kept = game.plays.Find(board.puzzle);
        } else {
            game.plays.LeaveUnseen(board.puzzle);
        }
    }
    game.playTime.Begin(kept ? kept->seconds : 0, game.clock.Milliseconds());
    TellTrouble(game);
    if (!kept || (kept->history.Count() == 0 && kept->history.Checkpoints().empty())) return;
    board.history.Take(Sound(board.puzzle, kept->history));
    for (int at = 0; at < board.history.Done(); ++at) {
        const PlayedMove& move = board.history.Moves()[static_cast<std::size_t>(at)];
        SetPairState(board, move.record.a, move.record.b, move.after);
    }
    board.solved = IsSolved(board.puzzle, board.BridgeState);
    game.playTime.SetSolved(board.solved, game.clock.Milliseconds());
    RedrawBoard(game, false);
    game.pictures.ShowOverlay();
    board.playNote = kept->solved || board.solved ? "Solved before" : "Your bridges are back";
    game.window.SetText(WindowText::Status, board.playNote);
}

std::string AndPlayNote(const Game& game, const std::string& text) {
    return game.board.playNote.empty() ? text : text + ". " + game.board.playNote;
}

void TellTrouble(Game& game) {
    const std::string trouble = game.plays.TakeTrouble();
    if (trouble.empty()) return;
    game.board.playNote = trouble;
    game.window.SetText(WindowText::Status, trouble);
}

}  // namespace tidewalk
