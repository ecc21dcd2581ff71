// SPDX-License-Identifier: MIT
#include "generator/shuffle_lines.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Keys are 1..99997.
constexpr int kKeys = 99997;

/// So many lines pass between two looks at whether to go on.
constexpr std::size_t kLinesPerStep = 256;

struct KeyedLine {
    int key;
    std::string_view line;
};

/// Thrown from one end of this file to the other when the work was stopped.
struct Stopped {};

/// The whole file.
std::string ReadWhole(const std::string& path, const ShuffleCounts& counts, const ShuffleStep& step) {
    DemandReadable(path);
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) Fail(path, errno);
    constexpr std::size_t kPiece = 1024 * 1024;
    std::string bytes;
    std::vector<char> piece(kPiece);
    while (file.read(piece.data(), kPiece) || file.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (!step(counts)) throw Stopped{};
    }
    if (file.bad()) Fail(path, errno);
    return bytes;
}

/// Takes the next line off `rest`, without its end.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

/// The first of all equal lines, each with a random key, in the order of the keys. Equal keys fall to byte order.
std::vector<KeyedLine> DistinctLines(std::string_view bytes, RandomSource& random, ShuffleCounts& counts,
                                     const ShuffleStep& step) {
    std::unordered_set<std::string_view> seen;
    std::vector<KeyedLine> lines;
    while (!bytes.empty()) {
        const std::string_view line = TakeLine(bytes);
        ++counts.lines;
        if (seen.insert(line).second) {
            lines.push_back({random.Draw(kKeys) + 1, line});
        } else {
            ++counts.duplicates;
        }
        if (counts.lines % kLinesPerStep == 0 && !step(counts)) throw Stopped{};
    }
    std::sort(lines.begin(), lines.end(),
              [](const KeyedLine& a, const KeyedLine& b) { return a.key != b.key ? a.key < b.key : a.line < b.line; });
    return lines;
}

}  // namespace

bool ShuffleLines(const std::string& input, const std::string& output, RandomSource& random, ShuffleCounts& counts,
                  const ShuffleStep& step) {
    try {
        const std::string bytes = ReadWhole(input, counts, step);
        const std::vector<KeyedLine> lines = DistinctLines(bytes, random, counts, step);
        ReplaceFile(output, [&](std::ostream& file) {
            for (const KeyedLine& line : lines) {
                file.write(line.line.data(), static_cast<std::streamsize>(line.line.size()));
                file << kLineEnd;
                if (++counts.written % kLinesPerStep == 0 && !step(counts)) throw Stopped{};
            }
        });
    } catch (const Stopped&) {
        return false;
    }
    return true;
}

std::string ShuffledName(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos ? "" : path.substr(0, dot) + "-noduprandom.txt";
}

}  // namespace tidewalk
