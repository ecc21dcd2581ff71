// SPDX-License-Identifier: MIT
// Redrawing the board on a picture like that of the screen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <random>

#include "board/board.h"
#include "board/drawing.h"
#include "support/random_boards.h"
#include "ui/qt_surface.h"

namespace tidewalk::bench {
namespace {

constexpr double kContainerTwips = 9600;
constexpr int kSpacing = 3;

/// A board in a container of 640 logical pixels, on a picture with so many device pixels for each of them.
void RedrawCrowdedBoard(benchmark::State& state) {
    const BoardSize size{static_cast<int>(state.range(0)), static_cast<int>(state.range(0))};
    const auto ratio = static_cast<double>(state.range(1));
    std::mt19937 random(7);
    Board board;
    TakePuzzle(board, test::MakeRandomPuzzle(random, size, kSpacing, false));
    board.layout = LayoutBoard(size, FittingCellSize(size, kContainerTwips), {kContainerTwips, kContainerTwips});
    QPixmap pixmap(static_cast<int>(Pixels(board.layout.Picture1.width) * ratio),
                   static_cast<int>(Pixels(board.layout.Picture1.height) * ratio));
    pixmap.setDevicePixelRatio(ratio);
    QtSurface surface(kTwipsPerInch / kTwipsPerPixel, kTwipsPerPixel);
    surface.SetTarget(&pixmap);
    const Options options;
    for (auto _ : state) {
        BoardDrawing(surface, board, options).RedrawBoard(false);
        surface.Finish();
    }
}
BENCHMARK(RedrawCrowdedBoard)
    ->ArgNames({"side", "ratio"})
    ->Args({7, 1})
    ->Args({25, 1})
    ->Args({25, 2})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tidewalk::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
