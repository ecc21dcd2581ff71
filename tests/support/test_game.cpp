// SPDX-License-Identifier: MIT
#include "support/test_game.h"

#include <filesystem>

#include "board/drawing.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "model/plain_grid.h"
#include "support/invariants.h"

namespace tidewalk::test {

namespace {

Seams SeamsTo(World& world) {
    return {world, world, world, world, world, world, world, world, world, world, world, world};
}

}  // namespace

std::string Joined(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

Lines LinesOf(const std::string& bytes) {
    Lines lines;
    std::size_t at = 0;
    for (std::size_t end = 0; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2)
        lines.push_back(bytes.substr(at, end - at));
    EXPECT_EQ(at, bytes.size()) << "the last line has no end";
    return lines;
}

TestGame::TestGame(const Lines& lines) : Game(SeamsTo(Surroundings::world)) {
    world.game = this;
    AppFolder = folder.Path("");
    random.UseSeed(1);
    if (!lines.empty()) collection.CollectionPath = folder.Write("collection.tdw", Joined(lines));
}

void TestGame::Load(int number) {
    ASSERT_TRUE(Run(LoadPuzzle, collection.CollectionPath, number));
    world.Seen();
}

void TestGame::TypeNumber(const std::string& number) {
    world.texts[WindowText::PuzzleNumber] = number;
    Run(PuzNumNow_KeyPress, kEnterKey);
}

Lines TestGame::FreshPicture(bool solution) const {
    BoardPicture picture;
    BoardDrawing(picture, board, options).RedrawBoard(solution);
    return picture.calls;
}

Lines TestGame::Numbers() const {
    return PlainGrid(board.puzzle);
}

void TestGame::ExpectWhole() const {
    EXPECT_EQ(CheckInvariants(*this), "");
    EXPECT_EQ(std::filesystem::current_path().string() + "/", folder.Path(""));
    if (job.BusyFlag() || job.Ending()) return;
    EXPECT_EQ(world.pointer, Pointer::Default);
    EXPECT_EQ(world.progressTotal, 0);
    EXPECT_TRUE(world.enabled && !world.frozen) << "the board is not the player's";
    EXPECT_EQ(world.markerTime, board.Shape1.visible);
    EXPECT_EQ(world.overlay, OverlayOf(board));
    EXPECT_EQ(world.placed, board.layout.Picture1);
    if (board.puzzle.CellCount() == 0 || ShowsSolution()) return;
    EXPECT_EQ(world.picture.calls, FreshPicture(false));
}

}  // namespace tidewalk::test
