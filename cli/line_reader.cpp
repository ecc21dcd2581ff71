// SPDX-License-Identifier: MIT
#include "cli/line_reader.h"

#include <algorithm>

#include "cli/puzzle_facts.h"
#include "model/load_puzzle.h"
#include "model/numbered_files.h"

namespace tidewalk {

namespace {

/// Some devices never end a line.
constexpr long long kLongestLine = 64LL * 1024 * 1024;

}  // namespace

LineReader::LineReader(Console& console, const std::string& path)
    : console_(console), path_(path), source_(console.in.rdbuf()) {
    if (path == kStandard) return;
    file_ = std::make_unique<InputDescriptor>(path, console.stopSignal);
    source_ = file_.get();
    size_ = file_->Size();
}

bool LineReader::Next(NumberedLine& line) {
    using Traits = std::streambuf::traits_type;
    line.text.clear();
    if (ended_ || console_.Stopped()) return false;
    const long long before = bytes_;
    for (;;) {
        const auto next = source_->sbumpc();
        if (Traits::eq_int_type(next, Traits::eof())) {
            ended_ = true;
            // A signal in the middle of a line looks like the end of the file.
            if (bytes_ == before || console_.Stopped()) return false;
            break;
        }
        if (++bytes_ - before > kLongestLine) {
            throw FileError(path_ + ": line " + std::to_string(number_ + 1) + " has no end");
        }
        const char character = Traits::to_char_type(next);
        if (character == '\n') break;
        if (line.text.size() <= kLongestRecord) line.text += character;
    }
    if (!line.text.empty() && line.text.back() == '\r') line.text.pop_back();
    line.number = ++number_;
    line.part = size_ <= 0 ? -1 : static_cast<double>(bytes_) / static_cast<double>(size_);
    return true;
}

bool ReadOnePuzzle(Console& console, const std::string& path, int number, Puzzle& puzzle) {
    LineReader lines(console, path);
    NumberedLine line;
    while (lines.Number() < number && lines.Next(line)) {
    }
    if (lines.Number() < number) {
        if (!console.Stopped()) SayIfMissing(console, path, {number, number}, lines.Number());
        return false;
    }
    if (ReadPuzzleRecord(line.text, puzzle)) return true;
    SayOfPuzzle(console, path, number, kNoRecord);
    return false;
}

int SayIfMissing(Console& console, const std::string& path, const PuzzleRange& range, int count) {
    const int firstMissing = std::max(range.first, count + 1);
    // All puzzles of a file are never too many.
    if (range.last == PuzzleRange::kEnd || firstMissing > range.last) return 0;
    const std::string holds = count == 0 ? "the file is empty" : "the last one is " + std::to_string(count);
    SayOfPuzzle(console, path, firstMissing, "there is no such puzzle, " + holds);
    return 1;
}

}  // namespace tidewalk
