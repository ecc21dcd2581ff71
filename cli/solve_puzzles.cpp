// SPDX-License-Identifier: MIT
// The command "solve".
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/ordered_work.h"
#include "cli/puzzle_facts.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "model/puzzle_record.h"
#include "solver/difficulty.h"
#include "solver/solve_puzzle.h"
#include "solver/valid_solution.h"

namespace tidewalk {

namespace {

/// What came of one puzzle.
struct Outcome {
    std::string failure;  ///< why it was not solved; "" when it was
    int trials = 0;
    double milliseconds = 0;
    Puzzle solution;
    std::optional<int> score;  ///< only of a puzzle with exactly one solution
};

/// A line of the collection, solved if that could be done.
struct SolvedLine {
    PuzzleReport report;
    std::string record;     ///< with the solution
    bool cutShort = false;  ///< without its bridges between touching islands
};

/// Why the puzzle was not solved, within the bound that was given.
std::string FailureOf(const SolveResult& result, const std::optional<int>& maxTrials) {
    if (maxTrials == 0) return "the rules alone do not solve it";
    if (maxTrials && result.trials > *maxTrials) return "given up after " + std::to_string(*maxTrials) + " trials";
    return result.end == SolveEnd::NoSolution ? "there is no solution" : "no solution was found";
}

/// Solves the puzzle on `board`, whatever that held before.
Outcome Solve(SolverBoard& board, const Puzzle& puzzle, const std::optional<int>& maxTrials, const MayGoOn& mayGoOn) {
    Outcome outcome;
    if (puzzle.IslandCount() == 0) {
        outcome.failure = "the puzzle has no islands";
        return outcome;
    }
    board.Reset(puzzle);
    // The search stops at its bound, so one more than may be tried.
    const SolveBounds bounds = maxTrials ? SolveBounds{*maxTrials, *maxTrials + 1} : SolveBounds{};
    const SolveResult result = SolvePuzzle(board, bounds, mayGoOn);
    outcome.trials = std::min(result.trials, maxTrials.value_or(result.trials));
    outcome.solution = PuzzleOf(board);
    const bool solved = result.Solved() && CheckLinkTotals(outcome.solution);
    if (!solved) outcome.failure = FailureOf(result, maxTrials);
    return outcome;
}

Outcome TimedSolve(SolverBoard& board, const Puzzle& puzzle, const std::optional<int>& maxTrials,
                   const MayGoOn& mayGoOn) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    Outcome outcome = Solve(board, puzzle, maxTrials, mayGoOn);
    outcome.milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    return outcome;
}

/// The grade's name, or "-".
std::string Grade(const Outcome& outcome) {
    return outcome.score ? std::string(DifficultyName(*outcome.score)) : "-";
}

/// What follows the puzzle's number and size on its line.
std::string OutcomeText(const Outcome& outcome, const std::vector<std::string>& bridges) {
    constexpr int kTrialsWidth = 5;
    constexpr int kGradeWidth = 5;
    constexpr int kTimeWidth = 9;
    const bool solved = outcome.failure.empty();
    char time[32];
    std::snprintf(time, sizeof time, "%.3f", outcome.milliseconds);
    std::string text = std::string(solved ? "solved  " : "unsolved") + "  " +
                       Padded(std::to_string(outcome.trials), kTrialsWidth) + " trials  " +
                       Padded(Grade(outcome), -kGradeWidth) + "  " + Padded(time, kTimeWidth) + " ms";
    if (!bridges.empty()) text += " ";
    for (const std::string& bridge : bridges)
        text += " " + bridge;
    return text;
}

/// Adds what came of the puzzle; with `links`, the bridges too.
void AddOutcome(PuzzleReport& report, const Outcome& outcome, bool links) {
    const bool solved = outcome.failure.empty();
    const auto bridges = solved && links ? BridgeTexts(BridgesOf(outcome.solution)) : std::vector<std::string>();
    report.fault = outcome.failure;
    report.line += "  " + OutcomeText(outcome, bridges);
    report.fields.emplace_back("solved", solved);
    report.fields.emplace_back("trials", outcome.trials);
    report.fields.emplace_back("grade", outcome.score ? JsonValue(Grade(outcome)) : JsonValue(nullptr));
    report.fields.emplace_back("milliseconds", outcome.milliseconds);
    if (solved && links) report.fields.emplace_back("links", bridges);
}

/// Solves the puzzle of a line, which the report has begun with.
void SolveLine(const Console& console, SolverBoard& board, const Puzzle& puzzle, const SolveOptions& options,
               SolvedLine& solved) {
    Outcome outcome = TimedSolve(board, puzzle, options.maxTrials, UntilStopSignal(console));
    if (outcome.failure.empty()) outcome.score = AssessPuzzle(puzzle, WithinBounds(console)).score;
    AddOutcome(solved.report, outcome, options.links);
    if (options.out && outcome.failure.empty()) {
        solved.record = PuzzleRecord(outcome.solution);
        solved.cutShort = !RecordHoldsBridges(outcome.solution);
    }
}

/// Solves the lines on so many threads; solved records go to `output`.
void SolveAll(Console& console, const SolveOptions& options, CollectionLines& lines, ReplacedRecords& output,
              CollectionReport& report) {
    std::vector<SolverBoard> boards(static_cast<std::size_t>(options.jobs));
    WorkSteps<NumberedLine, SolvedLine> steps;
    steps.next = [&](NumberedLine& line) { return lines.NextWithin(options.range, line); };
    steps.work = [&](int worker, NumberedLine& line) {
        SolvedLine solved;
        const std::optional<Puzzle> puzzle = BeginReport(line, solved.report);
        if (puzzle) SolveLine(console, boards[static_cast<std::size_t>(worker)], *puzzle, options, solved);
        if (options.json) PutInJson(solved.report);
        return solved;
    };
    steps.take = [&](SolvedLine& solved) {
        if (!report.Add(solved.report)) return false;
        if (solved.report.fault.empty()) output.Add(solved.record);
        if (solved.cutShort) {
            report.Flush();
            SayOfPuzzle(console, options.file, solved.report.number, kCutShort);
        }
        report.ShowProgress(solved.report.part, std::to_string(report.Successes()) + " solved, " +
                                                    std::to_string(report.Failures()) + " not");
        return true;
    };
    steps.idle = [&] { report.Flush(); };
    OrderedWork<NumberedLine, SolvedLine>(std::move(steps)).Run(options.jobs);
}

}  // namespace

int SolvePuzzles(Console& console, const SolveOptions& options) {
    if (options.out && AreOneFile(options.file, *options.out)) {
        Say(console, options.file + ": the solved records must not replace the collection itself");
        return kFailed;
    }
    CollectionLines lines(console, options.file);
    ReplacedRecords output(console, options.out);
    CollectionReport report(console, options.file, options.json, options.out == kStandard);
    SolveAll(console, options, lines, output, report);
    report.End();
    if (console.Stopped()) return ExitCodeOf(console, report.Failures());
    const int missing = SayIfMissing(console, options.file, options.range, lines.Number());
    output.Finish();
    // What is written is written, whatever signal came meanwhile.
    return report.Failures() + missing > 0 ? kFailed : kDone;
}

}  // namespace tidewalk
