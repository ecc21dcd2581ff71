// SPDX-License-Identifier: MIT
#include "model/work_areas.h"

#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

void ResetWorkAreas(Game& game) {
    ++game.loadCount;
    game.IslandGrid.FillBoard(-1);
    game.GivenGrid.FillBoard(-1);
    game.BridgeState.Clear();
    // Links, candidate lines, moves and the selection belong to the old board: even after a load that fails half way,
    // a redraw must not lead to cells that are not there any more.
    game.LinkList.Clear(game.Cols);
    game.OpenNeighbours.Fill({});
    game.UndoList.clear();
    ++game.undoRevision;
    game.HoverRow = game.HoverCol = 0;
    game.AnchorRow = game.AnchorCol = 0;
    game.FocusRow = game.FocusCol = 0;
    game.Line1.visible = false;
    game.Shape1.visible = false;
    game.pictures.EnableTimer1(false);
    game.pictures.ShowOverlay();
}

void NumberNewBoard(Game& game) {
    NumberCells(game);
    game.LinkList.Clear(game.Cols);
    game.CrossGrid.Fill(Cross::Free);
    game.ConnectedList.Fill({});
}

void FitBoard(Game& game) {
    game.CellSize = RoundHalfEven(game.pictures.Picture5Extent().width / (game.MaxDim + 2));
    game.FittedCellSize = game.CellSize;
    game.board.LayoutBoard(game);
}

void ShowPuzzleLabels(Game& game, const std::string& path) {
    game.window.SetText(Control::GridSize, NumText(game.Rows) + "x" + NumText(game.Cols));
    game.window.SetText(Control::PuzNumber, " of" + Str(game.PuzzleCount));
    game.window.SetText(Control::Puzfile, FileNameOf(path));
    game.window.SetToolTip(Control::Puzfile, path);
}

}  // namespace tidewalk
