// SPDX-License-Identifier: MIT
// How long it takes to shuffle a collection of 100,000 lines, a tenth of them duplicates.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "generator/shuffle_lines.h"

namespace tidewalk::bench {
namespace {

void Shuffle(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path();
    const std::string input = (folder / "tidewalk-shuffle-bench.txt").string();
    const std::string output = ShuffledName(input);
    {
        std::ofstream file(input, std::ios::binary);
        constexpr int kLines = 100000;
        constexpr int kDistinct = 90000;
        for (int i = 0; i < kLines; ++i)
            file << std::string(700, '.') << i % kDistinct << "\r\n";
    }
    RandomSource random;
    for (auto _ : state) {
        ShuffleCounts counts;
        ShuffleLines(input, output, random, counts, [](const ShuffleCounts&) { return true; });
    }
    std::filesystem::remove(input);
    std::filesystem::remove(output);
}
BENCHMARK(Shuffle)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tidewalk::bench
