// SPDX-License-Identifier: MIT
// Shuffling a collection and dropping the lines that it holds twice.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "model/random_source.h"

namespace tidewalk {

/// How far a shuffle is, or how it ended.
struct ShuffleCounts {
    std::size_t lines = 0;       ///< lines read
    std::size_t duplicates = 0;  ///< lines dropped because an equal one was read before
    std::size_t written = 0;     ///< lines written

    /// Lines that are kept.
    std::size_t Kept() const { return lines - duplicates; }
};

/// Asked again and again in a shuffle; false stops it.
using ShuffleStep = std::function<bool(const ShuffleCounts&)>;

/// Writes the distinct lines of the file `input` in random order to `output`. A line may have any length and hold any
/// bytes but its end, which is LF or CR LF in the input and CR LF in the output.
///
/// True when the output is complete. When `step` stops the work, or with FileError when a file cannot be read or
/// written, an older output stays as it was.
bool ShuffleLines(const std::string& input, const std::string& output, RandomSource& random, ShuffleCounts& counts,
                  const ShuffleStep& step);

/// The name of the shuffled copy of `path`: "puzzles.txt" gives "puzzles-noduprandom.txt"; "" for a path without ".".
std::string ShuffledName(const std::string& path);

}  // namespace tidewalk
