// SPDX-License-Identifier: MIT
// How large the board comes to the screen: zooming, fitting, magnifying and scrolling.
#include "board/magnify.h"
#include "board/board_commands.h"
#include "board/board_mouse.h"
#include "model/load_puzzle.h"
#include "support/play.h"

namespace tidewalk::test {
namespace {

TEST(Zoom, StaysWithinItsLimitsAndKeepsTheBridges) {
    Play game;
    game << "1-4";
    const auto zoomed = [&](int from, int index) {
        game.board.layout.CellSize = from;
        game.Run(cmdzoom_Click, index);
        return game.board.layout.CellSize;
    };
    EXPECT_EQ(zoomed(650, 1), 700);
    EXPECT_EQ(zoomed(305, 0), 274) << "274.5";
    EXPECT_EQ(zoomed(300, 2), 700) << "the fitted size, 1000, is brought down";
    EXPECT_EQ(game.State(), "1-4*1 ; 1, 4, 0");
    game << "4";
    game.Run(Picture1_MouseMove, false, game.board.At(7), Point{});
    EXPECT_EQ(zoomed(game.board.layout.CellSize, 0), 630);
    EXPECT_NEAR(game.board.Line1.to.x, game.board.At(7).x, 0.1) << "the band stays over its cells";
    EXPECT_EQ(zoomed(300, 1), 330);
    EXPECT_EQ(game.board.Line1.from, game.board.At(4)) << "the ring follows";
    game.world.visible = false;
    game.Run(cmdzoom_Click, 1);
    EXPECT_EQ(game.board.layout.CellSize, 330);
}

TEST(Zoom, AtALimitWouldOnlyShowOnABoardThatWasMoved) {
    Play game;
    for (const int index : {1, 0}) {
        for (int click = 0; click < 20; ++click)
            game.Run(cmdzoom_Click, index);
        EXPECT_FALSE(ZoomWouldShow(game, index));
        EXPECT_TRUE(ZoomWouldShow(game, 1 - index));
        game.board.layout.Picture1.top += 15;
        EXPECT_TRUE(ZoomWouldShow(game, index)) << "it comes back into the middle";
        game.Run(cmdzoom_Click, index);
        EXPECT_FALSE(ZoomWouldShow(game, index));
    }
}

/// A board in a container that is too large or too small for it.
struct MagnifiedPlay : Play {
    explicit MagnifiedPlay(const Lines& rows) : Play(rows) {}

    void Resize(double width, double height) {
        world.container = {width, height};
        Run(Picture5_Resize);
    }
    /// The cells of the board in the container, in twips of the screen.
    Frame Cells() const {
        Frame cells = CellsOf(board.layout);
        const double scale = board.magnification;
        const Frame& picture = board.layout.Picture1;
        return {(cells.left + picture.left) * scale, (cells.top + picture.top) * scale, cells.width * scale,
                cells.height * scale};
    }
    Point InContainer(CellNumber id) const {
        return {(board.layout.Picture1.left + board.At(id).x) * board.magnification,
                (board.layout.Picture1.top + board.At(id).y) * board.magnification};
    }
};

TEST(Magnification, FitsTheWholeBoardIntoAnyRoom) {
    for (const auto& [rows, cols] : {std::pair{7, 7}, {25, 25}, {7, 25}, {25, 7}}) {
        MagnifiedPlay game(Lines(static_cast<std::size_t>(rows), std::string(static_cast<std::size_t>(cols), '1')));
        for (const auto& [width, height] : {std::pair{9000.0, 9000.0}, {6000.0, 5500.0}, {40000.0, 20000.0}}) {
            game.Resize(width, height);
            const Frame cells = game.Cells();
            EXPECT_TRUE(cells.left > 0 && cells.top > 0 && cells.left + cells.width < width &&
                        cells.top + cells.height < height);
            EXPECT_GT(std::max(cells.width / width, cells.height / height), 0.8);
            EXPECT_EQ(CellsOutOfSight(game), HiddenCells());
        }
    }
}

TEST(Magnification, StaysAsItWasChosenUntilTheBoardIsToFitAgain) {
    MagnifiedPlay game(Lines(9, std::string(9, '1')));
    const Point before = game.InContainer(31);
    const double fitting = game.board.magnification;
    const Point from{before.x / fitting, before.y / fitting};
    game.Run(MagnifyBoard, 3.0, from, Point{from.x + 300 / fitting, from.y});
    EXPECT_EQ(game.board.magnification, 3);
    EXPECT_NEAR(game.InContainer(31).x, before.x + 300, 0.01) << "it stays between the fingers";
    EXPECT_NEAR(game.InContainer(31).y, before.y, 0.01);
    game.Run(KeepMagnification);
    game.Load(1);
    EXPECT_EQ(game.board.magnification, 3);
    game.Run(mnuactual_Click);
    game.Resize(5000, 5000);
    EXPECT_EQ(game.board.magnification, 1);
    game.Run(ReadMagnification);
    EXPECT_EQ(game.board.magnification, 3);
    game.Run(MagnifyBoard, 1e9, from, from);
    EXPECT_LT(game.board.magnification, 20) << "its picture has to be held";
    game.world.choices["magnification"] = "10000";
    game.Run(ReadMagnification);
    game.Load(1);
    game.Run(cmdzoom_Click, 1);
    EXPECT_LT(game.board.magnification, 20) << "and not too large by other ways";
    game.Run(mnufit_Click);
    EXPECT_EQ(CellsOutOfSight(game), HiddenCells());
    game.Run(KeepMagnification);
    EXPECT_EQ(game.world.choices.at("magnification"), "fit");
}

TEST(Magnification, ScrollsAsFarAsThereIsMoreToSee) {
    MagnifiedPlay game(Lines(9, std::string(9, '1')));
    game.Run(ScrollBoard, 100.0, 100.0);
    const Frame fitted = game.Cells();
    game.Run(ScrollBoard, -100.0, -100.0);
    EXPECT_EQ(game.Cells(), fitted) << "all of it is seen";
    game.Run(MagnifyBoard, 2.0, Point{}, Point{});
    game.Run(ScrollBoard, 1e9, 1e9);
    EXPECT_EQ(CellsOutOfSight(game), (HiddenCells{false, false, true, true}));
    game.Run(ScrollBoard, -1e9, 0.0);
    EXPECT_EQ(CellsOutOfSight(game), (HiddenCells{true, false, false, true}));
    game.board.layout.Picture1.left -= 5000;
    game.world.PlacePicture();
    const Frame dragged = game.board.layout.Picture1;
    game.Run(ScrollBoard, -1.0, 0.0);
    EXPECT_EQ(game.board.layout.Picture1, dragged) << "what was dragged away does not jump";
    game.Run(cmdverify_Click);
    const Point at = game.InContainer(1);
    EXPECT_TRUE(at.x > 0 && at.x < game.world.container.width) << "the framed cell is brought into view";
}

}  // namespace
}  // namespace tidewalk::test
