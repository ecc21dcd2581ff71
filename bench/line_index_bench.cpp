// SPDX-License-Identifier: MIT
// What an arrow step, a first load and a chooser read of collections of ten and of a million lines.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

#include "model/collection_file.h"
#include "model/line_index.h"

namespace tidewalk::bench {
namespace {

/// A collection of boards of 10x10 that goes away with the object. It has been there for a while.
class TemporaryCollection {
 public:
    explicit TemporaryCollection(int lines)
        : path_((std::filesystem::temp_directory_path() / "tidewalk-index-bench.tdw").string()) {
        std::string record = " 10, 10, 10;D;";
        for (int row = 1; row <= 10; ++row)
            record += "2=2...1-2.,";
        std::ofstream out(path_, std::ios::binary);
        for (int i = 0; i < lines; ++i)
            out << record << "\r\n";
        out.close();
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    ~TemporaryCollection() { std::remove(path_.c_str()); }
    TemporaryCollection(const TemporaryCollection&) = delete;
    TemporaryCollection& operator=(const TemporaryCollection&) = delete;

    const std::string& Path() const { return path_; }

 private:
    std::string path_;
};

/// An arrow counts, loads the line that it leads to and counts again.
bool Step(LineIndex& index, const std::string& path, int lines, int number) {
    std::string line;
    return index.Count(path) == lines && index.Read(path, number, line) == LineRead::Done && index.Count(path) == lines;
}

void ArrowStep(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    const TemporaryCollection collection(lines);
    LineIndex index;
    index.Count(collection.Path());
    int number = 0;
    for (auto _ : state) {
        // A prime stride visits places all over the file.
        number = (number + 7919) % lines;
        if (!Step(index, collection.Path(), lines, number + 1)) state.SkipWithError("not read");
    }
}
BENCHMARK(ArrowStep)->Arg(10)->Arg(1000000)->Unit(benchmark::kMicrosecond);

void FirstLoad(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    const TemporaryCollection collection(lines);
    for (auto _ : state) {
        LineIndex index;
        std::string line;
        if (index.Read(collection.Path(), lines / 2, line) != LineRead::Done || index.Count(collection.Path()) != lines)
            state.SkipWithError("not read");
    }
}
BENCHMARK(FirstLoad)->Arg(10)->Arg(1000000)->Unit(benchmark::kMicrosecond);

/// The same step without an index.
void ArrowStepThatRemembersNothing(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    const TemporaryCollection collection(lines);
    std::string line;
    for (auto _ : state) {
        if (CountLines(collection.Path()) != lines || !ReadCollectionLine(collection.Path(), lines / 2, line) ||
            CountLines(collection.Path()) != lines)
            state.SkipWithError("not read");
    }
}
BENCHMARK(ArrowStepThatRemembersNothing)->Arg(10)->Arg(1000000)->Unit(benchmark::kMicrosecond);

/// How long a chooser keeps a window waiting while lines are found, and for the line of a picture.
void OneSlice(benchmark::State& state) {
    const TemporaryCollection collection(1000000);
    LineIndex index;
    bool once = false;
    for (auto _ : state) {
        once = true;
        if (index.Advance(collection.Path(), [&] { return std::exchange(once, false); }).all) index = {};
    }
}
BENCHMARK(OneSlice)->Unit(benchmark::kMicrosecond);

void FetchKnownLine(benchmark::State& state) {
    constexpr int kLines = 1000000;
    const TemporaryCollection collection(kLines);
    LineIndex index;
    index.Count(collection.Path());
    std::string line;
    int number = 0;
    for (auto _ : state) {
        number = (number + 7919) % kLines;
        if (!index.FetchKnown(collection.Path(), number + 1, line)) state.SkipWithError("not known");
    }
}
BENCHMARK(FetchKnownLine)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tidewalk::bench
