// SPDX-License-Identifier: MIT
// The command "check".
#include <chrono>
#include <optional>
#include <sstream>
#include <utility>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/ordered_work.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"
#include "solver/count_solutions.h"

namespace tidewalk {

namespace {

/// How many solutions there are: 0, 1, or 2 for more; nothing when there was no time to tell.
using SolutionCount = std::optional<int>;

/// Counts the solutions up to two, for as long as there is time.
SolutionCount CountInTime(const Puzzle& puzzle, double seconds, const MayGoOn& mayGoOn) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    return CountSolutionsWhile(
        puzzle, 2, [&] { return mayGoOn() && std::chrono::duration<double>(Clock::now() - start).count() < seconds; });
}

std::string Word(SolutionCount count) {
    if (!count) return "undecided";
    return *count == 0 ? "none" : *count == 1 ? "one" : "several";
}

/// What is wrong with a puzzle; "" when nothing is.
std::string FaultOf(StoredSolution stored, SolutionCount count, double seconds) {
    std::string fault = stored == StoredSolution::Wrong      ? "the stored bridges are no solution"
                        : stored == StoredSolution::CutShort ? kCutShort
                                                             : "";
    const auto add = [&fault](const std::string& text) { fault += (fault.empty() ? "" : "; ") + text; };
    if (!count) {
        std::ostringstream text;
        text << "undecided after " << seconds << " s";
        add(text.str());
    } else if (*count != 1) {
        add(*count == 0 ? "there is no solution" : "there is more than one solution");
    }
    return fault;
}

PuzzleReport Checked(const NumberedLine& line, double seconds, const MayGoOn& mayGoOn) {
    constexpr int kStoredWidth = 5;
    PuzzleReport report;
    const std::optional<Puzzle> puzzle = BeginReport(line, report);
    if (!puzzle) return report;
    const StoredSolution stored = JudgeStored(*puzzle);
    const SolutionCount count = CountInTime(*puzzle, seconds, mayGoOn);
    report.fault = FaultOf(stored, count, seconds);
    report.line += "  stored " + Padded(Word(stored), -kStoredWidth) + "  solutions " + Word(count);
    report.fields.emplace_back("stored", Word(stored));
    report.fields.emplace_back("solutions", Word(count));
    report.fields.emplace_back("unique", count ? JsonValue(*count == 1) : JsonValue(nullptr));
    return report;
}

}  // namespace

int CheckPuzzles(Console& console, const CheckOptions& options) {
    CollectionLines lines(console, options.file);
    CollectionReport report(console, options.file, options.json);
    const MayGoOn mayGoOn = UntilStopSignal(console);
    WorkSteps<NumberedLine, PuzzleReport> steps;
    steps.next = [&](NumberedLine& line) { return lines.Next(line); };
    steps.work = [&](int /*worker*/, NumberedLine& line) { return Checked(line, options.seconds, mayGoOn); };
    steps.take = [&](PuzzleReport& checked) {
        if (!report.Add(checked)) return false;
        report.ShowProgress(checked.part, std::to_string(checked.number) + " puzzles");
        return true;
    };
    OrderedWork<NumberedLine, PuzzleReport>(std::move(steps)).Run(options.jobs);
    report.End();
    return ExitCodeOf(console, report.Failures());
}

}  // namespace tidewalk
