// SPDX-License-Identifier: MIT
#include "cli/collection_lines.h"

#include <algorithm>
#include <cstdint>

#include "model/file_error.h"
#include "model/puzzle_record.h"

namespace tidewalk {

CollectionLines::CollectionLines(Console& console, const std::string& path)
    : path_(path),
      stopSignal_(console.stopSignal),
      input_(console, path),
      size_(static_cast<double>(input_.Size())),
      reader_(input_.Buffer(), path) {}

/// Reads a line, so many bytes of it at most.
bool CollectionLines::ReadLine(std::string& text, std::size_t most) {
    const std::uint64_t start = reader_.Position();
    try {
        return reader_.Next(text, most);
    } catch (const FileError&) {
        if (reader_.Position() - start <= kLongestLine) throw;
        throw FileError(path_ + ": line " + std::to_string(number_ + 1) + " has no end");
    }
}

/// The same for the next line that counts.
bool CollectionLines::TakeLine(std::string& text, std::size_t most) {
    text.clear();
    if (ended_ || stopSignal_ != 0) return false;
    const bool read = ReadLine(text, most);
    ended_ = !read || !reader_.LineEnded();
    // A signal in the middle of a line looks like the end of the file.
    if (!read || (ended_ && stopSignal_ != 0)) return false;
    ++number_;
    return true;
}

bool CollectionLines::Next(NumberedLine& line) {
    // A byte more than a record may have shows that it has more.
    if (!TakeLine(line.text, kLongestRecord + 1)) return false;
    line.number = number_;
    line.part = size_ <= 0 ? -1 : static_cast<double>(reader_.Position()) / size_;
    return true;
}

bool CollectionLines::NextWithin(const PuzzleRange& range, NumberedLine& line) {
    while (number_ < range.first - 1) {
        if (!TakeLine(line.text, 0)) return false;
    }
    return number_ < range.last && Next(line);
}

std::optional<Puzzle> ReadOnePuzzle(Console& console, const std::string& path, int number) {
    CollectionLines lines(console, path);
    NumberedLine line;
    if (!lines.NextWithin({number, number}, line)) {
        if (!console.Stopped()) SayIfMissing(console, path, {number, number}, lines.Number());
        return std::nullopt;
    }
    std::optional<Puzzle> puzzle = ParsePuzzleRecord(line.text);
    if (!puzzle) SayOfPuzzle(console, path, number, kNoRecord);
    return puzzle;
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
