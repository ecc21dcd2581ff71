// SPDX-License-Identifier: MIT
// Booklets: laying them out, which the window does with every letter that is typed, and writing them as PDF.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "bench/created_puzzles.h"
#include "board/print_pages.h"
#include "booklet/booklet.h"
#include "ui/paper.h"

namespace tidewalk::bench {
namespace {

std::vector<BookletEntry> Entries(int count) {
    std::vector<BookletEntry> entries;
    for (int number = 1; number <= count; ++number)
        entries.push_back({number, {7 + number % 19, 7 + number % 17}, 3, true, 0});
    return entries;
}

void LayOutBooklet(benchmark::State& state) {
    const std::vector<BookletEntry> entries = Entries(static_cast<int>(state.range(0)));
    BookletDesign design;
    design.perPage = BookletDesign::kAsManyAsFit;
    const Sheet sheet{{11906, 16838}, {360, 360, 11546, 16478}};
    for (auto _ : state)
        benchmark::DoNotOptimize(Booklet(design, entries, sheet).Pages().size());
}
BENCHMARK(LayOutBooklet)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

/// Puzzles of 25x25, one a page, with their solutions at the end.
void WriteBooklet(benchmark::State& state) {
    const QTemporaryDir folder;
    const std::vector<Puzzle> puzzles = MakePuzzles(25, [](const CreatedPuzzle&) { return true; });
    std::vector<BookletEntry> entries;
    for (int number = 1; number <= state.range(0); ++number)
        entries.push_back(
            {number, {25, 25}, 3, true, Fingerprint(puzzles[static_cast<std::size_t>(number) % puzzles.size()])});
    BookletDesign design;
    design.perPage = 1;
    DocumentSetup setup;
    setup.file = folder.filePath("booklet.pdf").toStdString();
    setup.format = SheetFormat();
    for (auto _ : state) {
        std::string error;
        const auto document = BeginPdf(setup, error);
        const Booklet booklet(design, entries, document->PageSheet());
        const auto draw = [&](int page, Surface& surface, const Sheet&) {
            booklet.DrawPage(page, surface,
                             [&](int number) { return puzzles[static_cast<std::size_t>(number) % puzzles.size()]; });
        };
        PrintPages(*document, static_cast<int>(booklet.Pages().size()), draw, WithoutEnd);
    }
}
BENCHMARK(WriteBooklet)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tidewalk::bench
