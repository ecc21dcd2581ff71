// SPDX-License-Identifier: MIT
// Reading a collection once, from its first line to its last.
#pragma once

#include <atomic>
#include <optional>
#include <string>

#include "cli/console.h"
#include "cli/descriptor_buffers.h"
#include "model/line_reader.h"
#include "model/puzzle.h"
#include "model/puzzle_range.h"

namespace tidewalk {

/// What is said of a line that could not be read.
inline constexpr const char* kNoRecord = "the line is no puzzle record";

struct NumberedLine {
    int number = 0;    ///< from 1
    std::string text;  ///< without its end; of a line that is too long for a record only the beginning
    double part = -1;  ///< how much of the file there is up to here, 0..1, or -1 where its end is not known
};

/// The lines of a file, a pipe or the standard input, in order. They end when a signal asks the run to.
class CollectionLines {
 public:
    /// Throws FileError when the file cannot be opened. "-" is the console's input.
    CollectionLines(Console& console, const std::string& path);

    /// Takes the next line; false at the end and after the signal. Throws FileError when the system cannot read, or
    /// when a line does not come to an end.
    bool Next(NumberedLine& line);

    /// Takes the next line whose number the range holds; false when there is none. The lines before it are passed over
    /// without a look at them, and none behind the range is read.
    bool NextWithin(const PuzzleRange& range, NumberedLine& line);

    /// The number of the last line that was taken.
    int Number() const { return number_; }

 private:
    bool ReadLine(std::string& text, std::size_t most);
    bool TakeLine(std::string& text, std::size_t most);

    std::string path_;
    const std::atomic<int>& stopSignal_;
    Input input_;
    double size_;  ///< of the file in bytes; less than 0 where that is not known
    LineReader reader_;
    int number_ = 0;
    bool ended_ = false;  ///< a terminal would have to be told twice
};

/// Puzzle `number` of the collection. Where there is none or it is no record, says so and returns nothing. Throws
/// FileError when the file cannot be read.
std::optional<Puzzle> ReadOnePuzzle(Console& console, const std::string& path, int number);

/// When the range names puzzles behind the last one, `count`, says so and returns 1, otherwise 0.
int SayIfMissing(Console& console, const std::string& path, const PuzzleRange& range, int count);

}  // namespace tidewalk
