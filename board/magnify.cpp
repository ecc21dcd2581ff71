// SPDX-License-Identifier: MIT
#include "board/magnify.h"

#include <algorithm>
#include <cmath>

#include "board/show_board.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr double kSmallest = 0.25;
/// The longer side of a board that is magnified by hand, in twips of the screen: 3000 pixels. Its picture is held in
/// memory.
constexpr double kLongestSide = 45000;
constexpr double kPercent = 100;
constexpr const char* kChoice = "magnification";
constexpr const char* kFit = "fit";

/// The cell size from which a board that fills its room is magnified.
int SizeToFit(const Board& board) {
    return board.FittedCellSize > 0 ? board.FittedCellSize : board.layout.CellSize;
}

double Reasonable(const Game& game, double magnification) {
    const BoardLayout& layout = game.board.layout;
    const double side = std::max(layout.Picture1.width, layout.Picture1.height);
    const double fitting = FittingMagnification(layout, game.pictures.ContainerExtent());
    return std::clamp(magnification, kSmallest, std::max({1.0, fitting, kLongestSide / std::max(1.0, side)}));
}

/// How far the board has to move so that the cell around `at`, in the container, lies within `room`. Boards that were
/// fitted leave more than the margin, so that they stay in their place.
double Shift(double at, double cell, double room) {
    constexpr double kMargin = 0.6;  // the cell's half, and a little for the frame around it
    const double margin = std::min(kMargin * cell, room / 2);
    return std::clamp(at, margin, room - margin) - at;
}

void MoveBoard(Game& game, double right, double down) {
    if (right == 0 && down == 0) return;
    game.board.layout.Picture1.left += right;
    game.board.layout.Picture1.top += down;
    game.pictures.PlacePicture();
}

/// As much of a move as brings more of what lies from `begin` to `end` into the room; half a cell shows beyond its end.
double Scrolled(double by, double begin, double end, double room, double margin) {
    if (end - begin <= room) return 0;
    return std::clamp(by, std::min(0.0, room - margin - end), std::max(0.0, margin - begin));
}

/// The cells of the board in its container.
Frame CellsInRoom(const BoardLayout& layout) {
    Frame cells = CellsOf(layout);
    cells.left += layout.Picture1.left;
    cells.top += layout.Picture1.top;
    return cells;
}

}  // namespace

Surface::Extent RoomOf(const Game& game) {
    const Surface::Extent extent = game.pictures.ContainerExtent();
    return {extent.width / game.board.magnification, extent.height / game.board.magnification};
}

void BoundMagnification(Game& game) {
    if (!game.board.fits) game.board.magnification = Reasonable(game, game.board.magnification);
}

void FitMagnification(Game& game, int cellSize) {
    Board& board = game.board;
    if (!board.fits) return;
    const BoardLayout fitted = LayoutBoard(board.puzzle.Size(), cellSize, {});
    board.magnification = FittingMagnification(fitted, game.pictures.ContainerExtent());
}

void Picture5_Resize(Game& game) {
    if (game.board.puzzle.Rows == 0) return;
    FitMagnification(game, SizeToFit(game.board));
    CentreBoard(game.board.layout, RoomOf(game));
    game.pictures.PlacePicture();
}

void mnufit_Click(Game& game) {
    game.board.fits = true;
    Picture5_Resize(game);
    if (game.board.puzzle.Rows > 0 && !game.job.BusyFlag()) ZoomTo(game, SizeToFit(game.board));
}

void mnuactual_Click(Game& game) {
    game.board.fits = false;
    game.board.magnification = 1;
    Picture5_Resize(game);
}

void MagnifyBoard(Game& game, double magnification, Point from, Point to) {
    Board& board = game.board;
    if (!game.pictures.IsVisible() || board.puzzle.Rows == 0) return;
    board.fits = false;
    const double before = board.magnification;
    board.magnification = Reasonable(game, magnification);
    const double scale = before / board.magnification;
    Frame& picture = board.layout.Picture1;
    picture.left = to.x * scale - (from.x - picture.left);
    picture.top = to.y * scale - (from.y - picture.top);
    game.pictures.PlacePicture();
}

void ScrollBoard(Game& game, double right, double down) {
    const BoardLayout& layout = game.board.layout;
    if (game.board.puzzle.Rows == 0) return;
    const Frame cells = CellsInRoom(layout);
    const Surface::Extent room = RoomOf(game);
    MoveBoard(game, Scrolled(right, cells.left, cells.left + cells.width, room.width, layout.HalfCell),
              Scrolled(down, cells.top, cells.top + cells.height, room.height, layout.HalfCell));
}

void BringIntoView(Game& game, CellPlace cell) {
    const BoardLayout& layout = game.board.layout;
    const Surface::Extent room = RoomOf(game);
    const Point at = layout.At(cell);
    MoveBoard(game, Shift(layout.Picture1.left + at.x, layout.CellSize, room.width),
              Shift(layout.Picture1.top + at.y, layout.CellSize, room.height));
}

HiddenCells CellsOutOfSight(const Game& game) {
    if (game.board.puzzle.Rows == 0) return {};
    const Frame cells = CellsInRoom(game.board.layout);
    const Surface::Extent room = RoomOf(game);
    // What is cut off the outline of a cell is nothing to go and see.
    const double least = game.board.layout.CellSize / 8.0;
    return {cells
                .left<-least, cells.top<-least, cells.left + cells.width> room.width + least, cells.top + cells.height>
                    room.height +
            least};
}

void ReadMagnification(Game& game) {
    const std::string kept = game.choices.Get(kChoice, kFit);
    const double percent = Val(kept);
    game.board.fits = kept == kFit || !(percent > 0);
    if (!game.board.fits) game.board.magnification = std::clamp(percent / kPercent, kSmallest, kPercent);
}

void KeepMagnification(Game& game) {
    const double percent = std::round(game.board.magnification * kPercent);
    game.choices.Set(kChoice, game.board.fits ? kFit : NumText(static_cast<int>(percent)));
}

}  // namespace tidewalk
