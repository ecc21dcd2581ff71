// SPDX-License-Identifier: MIT
#include "board/show_board.h"

#include "board/drawing.h"
#include "board/keep_play.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "techniques/assess_board.h"

namespace tidewalk {

void RedrawBoard(Game& game, bool showSolution) {
    BoardDrawing(game.pictures.Picture(), game.board, game.options).RedrawBoard(showSolution);
}

void ZoomBoard(Game& game, int cellSize) {
    game.board.layout = LayoutBoard(game.board.puzzle.Size(), cellSize, game.pictures.ContainerExtent());
    game.pictures.PlacePicture();
}

void LayoutNewBoard(Game& game, BoardSize size) {
    KeepTime(game);
    game.board.puzzle = Puzzle(size);
    ZoomBoard(game, FittingCellSize(size, game.pictures.ContainerExtent().width));
}

void PutOnBoard(Game& game, const Puzzle& puzzle) {
    KeepTime(game);
    TakePuzzle(game.board, puzzle);
    game.job.PuzzleReplaced();
    game.guidance.Clear();
    AssessBoard(game);
    game.pictures.StopMarkerTime();
    game.pictures.ShowOverlay();
}

void FitBoard(Game& game) {
    const int fitting = FittingCellSize(game.board.puzzle.Size(), game.pictures.ContainerExtent().width);
    game.board.FittedCellSize = fitting;
    ZoomBoard(game, fitting);
}

void FitBoardIfCutOff(Game& game) {
    const BoardLayout before = game.board.layout;
    const double room = game.pictures.ContainerExtent().width;
    if (game.job.BusyFlag() || game.board.puzzle.Rows == 0 || before.Picture1.width <= room) return;
    game.board.FittedCellSize = FittingCellSize(game.board.puzzle.Size(), room);
    ZoomBoard(game, game.board.FittedCellSize);
    RedrawBoard(game, false);
    FollowLayout(game.board, before);
    game.pictures.ShowOverlay();
}

void ShowPuzzleLabels(Game& game, const std::string& path) {
    const Puzzle& puzzle = game.board.puzzle;
    game.window.SetText(WindowText::BoardSize, NumText(puzzle.Rows) + "x" + NumText(puzzle.Cols));
    game.window.SetText(WindowText::PuzzleCount, " of" + Str(game.collection.PuzzleCount));
    game.window.SetText(WindowText::CollectionName, FileNameOf(path));
    game.window.SetToolTip(WindowText::CollectionName, path);
}

void CentreBoard(Game& game) {
    CentreBoard(game.board.layout, game.pictures.ContainerExtent());
    game.pictures.PlacePicture();
}

void ShowEmptyBoard(Game& game) {
    PutOnBoard(game, Puzzle(game.board.puzzle.Size()));
    ZoomBoard(game, game.board.layout.CellSize);
    RedrawBoard(game, false);
}

}  // namespace tidewalk
