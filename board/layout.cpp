// SPDX-License-Identifier: MIT
#include "board/layout.h"

#include <algorithm>

#include "board/drawing.h"
#include "model/job.h"
#include "model/numbers.h"
#include "model/work_areas.h"

namespace tidewalk {

namespace {

constexpr int kCellSizeOfNone = 300;       ///< stands in for a cell size of 0
constexpr double kTwipsPerFontPoint = 50;  ///< a cell of 50 twips takes numbers of one point
constexpr double kBoardMargin = 1.15;      ///< the board is 15% larger than the cells that it holds

}  // namespace

void LayoutNewBoard(Game& game) {
    game.IslandGrid.FillBoard(0);
    NumberNewBoard(game);
    game.CellSize = RoundHalfEven(game.pictures.Picture5Extent().width / (game.MaxDim + 2));
    LayoutBoard(game);
}

void LayoutBoard(Game& game) {
    if (game.CellSize == 0) game.CellSize = kCellSizeOfNone;
    game.CellSize = std::clamp(game.CellSize, kSmallestCell, kLargestCell);
    const int cell = game.CellSize;
    game.HalfCell = RoundHalfEven(cell / 2.0);
    game.DoubleGap = RoundHalfEven(cell / 6.0);
    game.Picture1.width = cell * kBoardMargin * game.Cols;
    game.Picture1.height = cell * kBoardMargin * game.Rows;
    game.Shape1.frame.width = game.Shape1.frame.height = cell;
    // The half cell is added downwards only: islands lie in the middle of their cells' height but on their left edge.
    // The pointer's cell is found by the same positions.
    game.OriginY = RoundHalfEven((game.Picture1.height - game.Rows * cell) / 2 + game.HalfCell);
    game.OriginX = RoundHalfEven((game.Picture1.width - game.Cols * cell) / 2);
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        game.IslandX[id] = (game.CellCol[id] - 1) * cell + game.OriginX;
        game.IslandY[id] = (game.CellRow[id] - 1) * cell + game.OriginY;
    }
    CentreBoard(game);
    game.LineWidth = std::max(cell / 200, 1);
    game.pictures.Picture1().SetFontSize(cell / kTwipsPerFontPoint);
    game.pictures.Picture1().SetDrawWidth(game.LineWidth);
}

void CentreBoard(Game& game) {
    const Surface::Extent container = game.pictures.Picture5Extent();
    game.Picture1.left = (container.width - game.Picture1.width) / 2;
    game.Picture1.top = (container.height - game.Picture1.height) / 2;
    game.pictures.PlacePicture1();
}

void cmdzoom_Click(Game& game, int index) {
    if (!game.pictures.IsVisible() || JobRuns(game)) return;
    if (index == 0) game.CellSize = RoundHalfEven(game.CellSize * 0.9);
    if (index == 1) game.CellSize = RoundHalfEven(game.CellSize * 1.1);
    if (index == 2) game.CellSize = game.FittedCellSize;
    LayoutBoard(game);
    RedrawBoard(game, false);
}

}  // namespace tidewalk
