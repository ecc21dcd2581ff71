// SPDX-License-Identifier: MIT
#include "cli/collection_run.h"

#include <utility>

#include "cli/ordered_work.h"

namespace tidewalk {

int ReportOnCollection(Console& console, const CollectionRun& run, const ReportOnLine& reportOn) {
    CollectionLines lines(console, run.file);
    CollectionReport report(console, run.file, run.json);
    WorkSteps<NumberedLine, PuzzleReport> steps;
    steps.next = [&](NumberedLine& line) { return lines.NextWithin(run.range, line); };
    steps.work = [&](int /*worker*/, NumberedLine& line) {
        PuzzleReport puzzle = reportOn(line);
        if (run.json) PutInJson(puzzle);
        return puzzle;
    };
    steps.take = [&](PuzzleReport& puzzle) {
        if (!report.Add(puzzle)) return false;
        report.ShowProgress(puzzle.part, std::to_string(puzzle.number) + " puzzles");
        return true;
    };
    steps.idle = [&] { report.Flush(); };
    OrderedWork<NumberedLine, PuzzleReport>(std::move(steps)).Run(run.jobs);
    report.End();
    if (console.Stopped()) return ExitCodeOf(console, report.Failures());
    const int missing = SayIfMissing(console, run.file, run.range, lines.Number());
    return ExitCodeOf(console, report.Failures() + missing);
}

}  // namespace tidewalk
