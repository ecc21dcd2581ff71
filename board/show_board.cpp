// SPDX-License-Identifier: MIT
#include "board/show_board.h"

#include "board/drawing.h"
#include "board/keep_play.h"
#include "board/magnify.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "techniques/assess_board.h"

namespace tidewalk {

void RedrawBoard(Game& game, bool showSolution) {
    BoardDrawing(game.pictures.Picture(), game.board, game.options).RedrawBoard(showSolution);
}

void ZoomBoard(Game& game, int cellSize) {
    game.board.layout = LayoutBoard(game.board.puzzle.Size(), cellSize, {});
    BoundMagnification(game);
    CentreBoard(game.board.layout, RoomOf(game));
    game.pictures.PlacePicture();
}

void LayoutNewBoard(Game& game, BoardSize size) {
    KeepTime(game);
    game.board.puzzle = Puzzle(size);
    const int fitting = FittingCellSize(size, game.pictures.ContainerExtent().width);
    FitMagnification(game, fitting);
    ZoomBoard(game, fitting);
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
    FitMagnification(game, fitting);
    ZoomBoard(game, fitting);
}

void ZoomTo(Game& game, int cellSize) {
    const BoardLayout before = game.board.layout;
    ZoomBoard(game, cellSize);
    RedrawBoard(game, false);
    FollowLayout(game.board, before);
    game.pictures.ShowOverlay();
}

void ShowPuzzleLabels(Game& game, const std::string& path) {
    const Puzzle& puzzle = game.board.puzzle;
    game.window.SetText(WindowText::BoardSize, SizeText(puzzle.Size()));
    game.window.SetText(WindowText::PuzzleCount, " of" + Str(game.collection.PuzzleCount));
    game.window.SetText(WindowText::CollectionName, FileNameOf(path));
    game.window.SetToolTip(WindowText::CollectionName, path);
}

void ShowEmptyBoard(Game& game) {
    PutOnBoard(game, Puzzle(game.board.puzzle.Size()));
    ZoomBoard(game, game.board.layout.CellSize);
    RedrawBoard(game, false);
}

}  // namespace tidewalk
