// SPDX-License-Identifier: MIT
// Reaching the last puzzle of a large collection, beside reading the file's lines and doing nothing with them.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "model/collection_file.h"

namespace tidewalk::bench {
namespace {

constexpr int kPuzzles = 10000;

/// A collection of 10,000 boards of 25x25, made once.
const std::string& LargeCollection() {
    static const std::string path = [] {
        std::string record = " 25, 25, 25;D;";
        for (int row = 1; row <= kMaxSide; ++row)
            record += "2=2...1-2-1...2=3-1.....1,";
        std::string made = (std::filesystem::temp_directory_path() / "tidewalk-bench.tdw").string();
        std::ofstream out(made, std::ios::binary);
        for (int i = 0; i < kPuzzles; ++i)
            out << record << "\r\n";
        return made;
    }();
    return path;
}

/// What loading a puzzle reads: its own line, and all lines to count them.
void ReadPuzzle10000(benchmark::State& state) {
    for (auto _ : state) {
        const auto puzzle = ReadPuzzle(LargeCollection(), kPuzzles);
        if (!puzzle || CountLines(LargeCollection()) != kPuzzles) state.SkipWithError("not read");
    }
}
BENCHMARK(ReadPuzzle10000)->Unit(benchmark::kMillisecond);

void ReadTheLines(benchmark::State& state) {
    for (auto _ : state) {
        std::ifstream in(LargeCollection(), std::ios::binary);
        std::string line;
        std::size_t bytes = 0;
        while (std::getline(in, line))
            bytes += line.size();
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(ReadTheLines)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tidewalk::bench
