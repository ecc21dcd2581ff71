// SPDX-License-Identifier: MIT
#include "generator/shuffle_lines.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <deque>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/paths.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Keys are 1..99997.
constexpr int kKeys = 99997;

/// So many lines, or bytes, pass between two looks at whether to go on.
constexpr std::size_t kLinesPerStep = 256;
constexpr std::uint64_t kBytesPerStep = 1024 * 1024;

/// A line that is kept: where it lies in the file, and what it is known by. Files are larger than memories.
struct KeyedLine {
    std::uint64_t offset = 0;
    std::uint64_t hash = 0;
    std::uint32_t length = 0;
    std::int32_t key = 0;
};
static_assert(kLongestLine <= std::numeric_limits<std::uint32_t>::max());

/// Thrown from one end of this file to the other when the work was stopped.
struct Stopped {};

/// An open file whose lines can be read again.
struct Source {
    const SystemFile& file;
    const std::string& name;

    std::string Text(const KeyedLine& line) const {
        errno = 0;
        std::string text = file.Read(line.offset, line.length);
        if (text.size() == line.length) return text;
        if (errno != 0) Fail(name, errno);
        throw FileError(name + ": it was cut while it was read");
    }
};

/// The first of all equal lines.
class DistinctLines {
 public:
    explicit DistinctLines(const Source& source) : source_(source) {}

    /// Keeps the line with a random key; false for a line that was there before.
    bool Add(std::uint64_t offset, const std::string& line, RandomSource& random) {
        if (4 * lines_.size() >= 3 * places_.size()) Grow();
        const std::uint64_t hash = std::hash<std::string_view>()(line);
        std::uint32_t& place = PlaceOf(hash, [&](const KeyedLine& known) {
            return known.hash == hash && known.length == line.size() && source_.Text(known) == line;
        });
        if (place != kFree) return false;
        place = static_cast<std::uint32_t>(lines_.size());
        lines_.push_back({offset, hash, static_cast<std::uint32_t>(line.size()), random.Draw(kKeys) + 1});
        return true;
    }

    /// Hands the lines over, those with equal keys in the order of the file.
    std::deque<KeyedLine> TakeByKey() {
        std::vector<std::uint32_t>().swap(places_);
        std::sort(lines_.begin(), lines_.end(), [](const KeyedLine& a, const KeyedLine& b) {
            return a.key != b.key ? a.key < b.key : a.offset < b.offset;
        });
        return std::move(lines_);
    }

 private:
    static constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

    /// The place of the line that `isIt`, or the free one where it belongs.
    template <class IsIt>
    std::uint32_t& PlaceOf(std::uint64_t hash, IsIt isIt) {
        const std::size_t mask = places_.size() - 1;
        std::size_t at = hash & mask;
        while (places_[at] != kFree && !isIt(lines_[places_[at]]))
            at = (at + 1) & mask;
        return places_[at];
    }

    void Grow() {
        constexpr std::size_t kFewest = 1024;
        const std::size_t wanted = std::max(kFewest, 2 * places_.size());
        if (wanted > kFree) Fail(source_.name, EFBIG);
        // The old places are given back first: only the lines are needed to make them again.
        std::vector<std::uint32_t>().swap(places_);
        places_.assign(wanted, kFree);
        std::uint32_t number = 0;
        for (const KeyedLine& line : lines_)
            PlaceOf(line.hash, [](const KeyedLine&) { return false; }) = number++;
    }

    Source source_;
    std::deque<KeyedLine> lines_;        ///< a vector would hold all of them twice whenever it grows
    std::vector<std::uint32_t> places_;  ///< numbers of lines, found by their hashes
};

/// Reads the lines; each that is new gets a key.
std::deque<KeyedLine> ReadLines(const Source& source, RandomSource& random, ShuffleCounts& counts,
                                const ShuffleStep& step) {
    FileInput input(source.file, source.name);
    LineReader reader(input, source.name);
    DistinctLines lines(source);
    std::uint64_t lastLook = 0;
    for (std::string line; reader.Next(line);) {
        ++counts.lines;
        if (!lines.Add(reader.LineStart(), line, random)) ++counts.duplicates;
        if (counts.lines % kLinesPerStep != 0 && reader.Position() - lastLook < kBytesPerStep) continue;
        lastLook = reader.Position();
        if (!step(counts)) throw Stopped{};
    }
    return lines.TakeByKey();
}

/// Writes the lines in the order of their keys. Equal keys fall to byte order.
void WriteLines(const Source& source, const std::deque<KeyedLine>& lines, std::ostream& output, ShuffleCounts& counts,
                const ShuffleStep& step) {
    std::vector<std::string> texts;
    for (auto from = lines.begin(); from != lines.end();) {
        texts.clear();
        for (const int key = from->key; from != lines.end() && from->key == key; ++from)
            texts.push_back(source.Text(*from));
        std::sort(texts.begin(), texts.end());
        for (const std::string& text : texts) {
            output << text << kLineEnd;
            if (!output) return;
            if (++counts.written % kLinesPerStep == 0 && !step(counts)) throw Stopped{};
        }
    }
}

void Shuffle(const Source& source, std::ostream& output, RandomSource& random, ShuffleCounts& counts,
             const ShuffleStep& step) {
    const std::deque<KeyedLine> lines = ReadLines(source, random, counts, step);
    WriteLines(source, lines, output, counts, step);
}

}  // namespace

bool ShuffleLines(const std::string& input, const std::string& output, RandomSource& random, ShuffleCounts& counts,
                  const ShuffleStep& step) {
    DemandReadable(input);
    const auto file = SystemFile::Open(input, SystemFile::Mode::Read);
    if (!file) Fail(input, errno);
    try {
        ReplaceFile(output, [&](std::ostream& out) { Shuffle({*file, input}, out, random, counts, step); });
    } catch (const Stopped&) {
        return false;
    }
    return true;
}

bool ShuffleLines(const SystemFile& input, const std::string& name, std::ostream& output, RandomSource& random,
                  ShuffleCounts& counts, const ShuffleStep& step) {
    try {
        Shuffle({input, name}, output, random, counts, step);
    } catch (const Stopped&) {
        return false;
    }
    return true;
}

std::string ShuffledName(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos) return "";
    // A dot in a folder's name ends no file name.
    const bool inName = path.size() - dot <= FileNameOf(path).size();
    return path.substr(0, inName ? dot : path.size()) + "-noduprandom.txt";
}

}  // namespace tidewalk
