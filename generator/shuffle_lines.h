// SPDX-License-Identifier: MIT
// Shuffling a collection and dropping the lines that it holds twice.
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

#include "model/random_source.h"
#include "model/system_file.h"

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

/// Writes the distinct lines of the file `input` in random order to `output`. A line may hold any bytes but its end,
/// which is LF or CR LF in the input and CR LF in the output; a byte order mark at the start is passed over.
///
/// The lines stay in the file, 24 bytes and a place in a table are kept of each. True when the output is complete. When
/// `step` stops the work, or with FileError when a file cannot be read or written or a line does not come to an end, an
/// older output stays as it was.
bool ShuffleLines(const std::string& input, const std::string& output, RandomSource& random, ShuffleCounts& counts,
                  const ShuffleStep& step);

/// The same from an open file, which messages call `name`, to a stream. Nothing is written before all is read.
bool ShuffleLines(const SystemFile& input, const std::string& name, std::ostream& output, RandomSource& random,
                  ShuffleCounts& counts, const ShuffleStep& step);

/// The name of the shuffled copy of `path`: "puzzles.txt" gives "puzzles-noduprandom.txt"; "" for a path without ".".
std::string ShuffledName(const std::string& path);

}  // namespace tidewalk
