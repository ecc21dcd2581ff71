// SPDX-License-Identifier: MIT
// Reading a collection once, from its first line to its last.
#pragma once

#include <memory>
#include <string>

#include "cli/console.h"
#include "cli/descriptor_buffers.h"
#include "cli/puzzle_range.h"
#include "model/puzzle.h"

namespace tidewalk {

struct NumberedLine {
    int number = 0;    ///< from 1
    std::string text;  ///< without its end; of a line that is too long for a record only the beginning
    double part = -1;  ///< how much of the file there is up to here, 0..1, or -1 where its end is not known
};

/// The lines of a file, a pipe or the standard input, in order.
class LineReader {
 public:
    /// Throws FileError when the file cannot be opened. "-" is the console's input.
    LineReader(Console& console, const std::string& path);

    /// Takes the next line; false at the end and when the run is to stop. Throws FileError when the system cannot read,
    /// or when a line does not come to an end.
    bool Next(NumberedLine& line);

    /// The number of the last line that was taken.
    int Number() const { return number_; }

 private:
    Console& console_;
    std::string path_;
    std::unique_ptr<InputDescriptor> file_;
    std::streambuf* source_;
    int number_ = 0;
    bool ended_ = false;  ///< a terminal would have to be told twice
    long long bytes_ = 0;
    long long size_ = -1;  ///< of the file; -1 where that is not known
};

/// Reads puzzle `number` of the collection into `puzzle`. Otherwise says that there is none or that it is no record and
/// returns false. Throws FileError when the file cannot be read.
bool ReadOnePuzzle(Console& console, const std::string& path, int number, Puzzle& puzzle);

/// When the range names puzzles behind the last one, `count`, says so and returns 1, otherwise 0.
int SayIfMissing(Console& console, const std::string& path, const PuzzleRange& range, int count);

}  // namespace tidewalk
