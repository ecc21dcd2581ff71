// SPDX-License-Identifier: MIT
// One report on each puzzle of a part of a collection, made by several threads.
#pragma once

#include <functional>
#include <string>

#include "cli/collection_lines.h"
#include "cli/console.h"
#include "cli/report.h"
#include "model/puzzle_range.h"

namespace tidewalk {

/// What is reported on, and how.
struct CollectionRun {
    std::string file;
    PuzzleRange range;
    int jobs = 1;
    bool json = false;
};

/// Makes the report on a line; called by any thread. Returns it, in JSON with the fields that it wants there.
using ReportOnLine = std::function<PuzzleReport(const NumberedLine& line)>;

/// Prints a report on every line of the range, in their order, and says so when the range names lines that are not
/// there. However long the file is, only a few lines of it are held at a time. Returns the program's exit code. Throws
/// FileError when the file cannot be read.
int ReportOnCollection(Console& console, const CollectionRun& run, const ReportOnLine& reportOn);

}  // namespace tidewalk
