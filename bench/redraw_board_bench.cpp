// SPDX-License-Identifier: MIT
// Redrawing the board on a picture like that of the screen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <memory>
#include <random>

#include "board/drawing.h"
#include "board/layout.h"
#include "program/headless.h"
#include "tests/support/random_boards.h"
#include "ui/qt_surface.h"

namespace tidewalk::bench {
namespace {

constexpr double kContainerTwips = 9600;

/// A container of 640 logical pixels, whose board is drawn for real.
class PicturesOnPixmap final : public BoardPictures {
 public:
    Surface::Extent Picture5Extent() const override { return {kContainerTwips, kContainerTwips}; }
    Surface& Picture1() override { return surface_; }
    void PlacePicture1() override {}
    void ShowOverlay() override {}
    void SetEnabled(bool /*enabled*/) override {}
    void SetVisible(bool /*visible*/) override {}
    bool IsVisible() const override { return true; }
    void Freeze(bool /*frozen*/) override {}
    void EnableTimer1(bool /*enabled*/) override {}

    /// Makes the picture for a board of this size, with so many device pixels for each logical one.
    void Resize(const Frame& board, double ratio) {
        surface_.SetTarget(nullptr);
        pixmap_ = QPixmap(static_cast<int>(board.width / kTwipsPerPixel * ratio),
                          static_cast<int>(board.height / kTwipsPerPixel * ratio));
        pixmap_.setDevicePixelRatio(ratio);
        surface_.SetTarget(&pixmap_);
    }
    void Finish() { surface_.Finish(); }

 private:
    QPixmap pixmap_;
    QtSurface surface_{96, kTwipsPerPixel};
};

void RedrawCrowdedBoard(benchmark::State& state) {
    HeadlessWorld world;
    DrawnBoard board;
    SystemClock clock;
    PicturesOnPixmap pictures;
    const auto game = std::make_unique<Game>(Seams{.prompts = world,
                                                   .filePicker = world,
                                                   .window = world,
                                                   .pictures = pictures,
                                                   .board = board,
                                                   .events = world,
                                                   .clock = clock,
                                                   .batchWindow = world,
                                                   .clipboard = world,
                                                   .printers = world,
                                                   .form5 = world});
    std::mt19937 random(7);
    game->Rows = game->Cols = static_cast<int>(state.range(0));
    LayoutNewBoard(*game);
    constexpr int kSpacing = 3;
    test::MakeRandomBoard(*game, random, game->Rows, game->Cols, kSpacing, false);
    pictures.Resize(game->Picture1, static_cast<double>(state.range(1)));
    LayoutBoard(*game);
    for (auto _ : state) {
        RedrawBoard(*game, false);
        pictures.Finish();
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
