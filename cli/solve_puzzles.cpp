// SPDX-License-Identifier: MIT
// The command "solve".
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/ordered_work.h"
#include "cli/puzzle_facts.h"
#include "cli/record_output.h"
#include "cli/workers.h"
#include "model/load_puzzle.h"
#include "model/work_areas.h"
#include "model/write_puzzle_record.h"
#include "solver/difficulty.h"
#include "solver/solve_puzzle.h"
#include "solver/valid_solution.h"

namespace tidewalk {

namespace {

struct Solved {
    int number = 0;
    double part = -1;
    std::string lineStart;  ///< "" for a line that is no record
    int rows = 0;
    int cols = 0;
    std::string failure;  ///< "" for a puzzle that was solved
    int trials = 0;
    double milliseconds = 0;
    std::vector<std::string> links;
    std::string record;
};

/// The laid bridges as "id-id:count", in order of the ids.
std::vector<std::string> LaidBridgeTexts(const Puzzle& puzzle) {
    std::map<std::pair<int, int>, int> laid;
    for (int i = 1; i <= puzzle.LinkCount(); ++i) {
        const Link& link = puzzle.LinkList[i];
        if (link.state < 2) laid[std::minmax<int>(link.first, link.second)] += 2 - link.state;
    }
    std::vector<std::string> texts;
    for (const auto& [islands, count] : laid) {
        texts.push_back(std::to_string(islands.first) + "-" + std::to_string(islands.second) + ":" +
                        std::to_string(count));
    }
    return texts;
}

/// Solves what the game holds; returns why it could not, or "".
std::string SolveGame(Game& game, int maxTrials, int& trials) {
    if (IslandCount(game) == 0) return "the puzzle has no islands";
    const Job job(game);
    // The search stops at its bound, so one more than may be tried.
    game.TrialLimit = maxTrials + 1;
    const int failed = SolvePuzzle(game, maxTrials, trials);
    if (failed == NoValue && CheckLinkTotals(game) == NoValue) return "";
    if (maxTrials == 0) return "the rules alone do not solve it";
    if (trials <= maxTrials) return "no solution was found";
    trials = maxTrials;
    return "given up after " + std::to_string(maxTrials) + " trials";
}

Solved SolveLine(Game& game, const NumberedLine& line, const SolveOptions& options) {
    Solved solved;
    solved.number = line.number;
    solved.part = line.part;
    if (!ReadPuzzleRecord(line.text, game)) {
        solved.failure = kNoRecord;
        return solved;
    }
    // The tables are those of the line that was solved before.
    NumberNewBoard(game);
    game.OpenNeighbours.Fill({});
    solved.lineStart = LineStart(line.number, game);
    solved.rows = game.Rows;
    solved.cols = game.Cols;
    const auto start = std::chrono::steady_clock::now();
    solved.failure = SolveGame(game, options.maxTrials, solved.trials);
    solved.milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    if (!solved.failure.empty()) return solved;
    if (options.links) solved.links = LaidBridgeTexts(game);
    if (options.out) solved.record = PuzzleRecord(game);
    return solved;
}

std::string TextOf(const Solved& solved) {
    if (solved.lineStart.empty()) return "";
    const bool done = solved.failure.empty();
    char time[32];
    std::snprintf(time, sizeof time, "%.3f", solved.milliseconds);
    std::string text = solved.lineStart + "  " + (done ? "solved  " : "unsolved") + "  " +
                       Padded(std::to_string(solved.trials), 5) + " trials  " +
                       Padded(done ? std::string(DifficultyName(solved.trials)) : "-", -5) + "  " + Padded(time, 9) +
                       " ms";
    if (!solved.links.empty()) text += " ";
    for (const std::string& link : solved.links)
        text += " " + link;
    return text;
}

Json JsonOf(const Solved& solved, bool links) {
    Json object{{"number", solved.number}};
    if (!solved.lineStart.empty()) {
        object["rows"] = solved.rows;
        object["cols"] = solved.cols;
        object["solved"] = solved.failure.empty();
        object["trials"] = solved.trials;
        object["grade"] = solved.failure.empty() ? Json(DifficultyName(solved.trials)) : Json(nullptr);
        object["milliseconds"] = solved.milliseconds;
    }
    if (!solved.failure.empty()) object["error"] = solved.failure;
    if (links && solved.failure.empty()) object["links"] = solved.links;
    return object;
}

/// True when the solved records would replace the collection that they come from, and with it what is not solved.
bool WouldReplaceItself(const SolveOptions& options) {
    std::error_code error;
    return options.out && *options.out != kStandard && std::filesystem::equivalent(options.file, *options.out, error);
}

}  // namespace

int SolvePuzzles(Console& console, const SolveOptions& options) {
    if (WouldReplaceItself(options)) {
        Say(console, options.file + ": the solved records must not replace the collection itself");
        return kFailed;
    }
    LineReader lines(console, options.file);
    RecordOutput output(console, options.out);
    Progress progress(console, true);
    WorkerGames games(console, options.jobs);
    int failures = 0;
    int solvedCount = 0;
    {
        const bool silent = options.out == kStandard;
        Report report(console, options.json, silent);
        WorkSteps<NumberedLine, Solved> steps;
        steps.next = [&](NumberedLine& line) {
            while (lines.Number() < options.range.last && lines.Next(line)) {
                if (options.range.Holds(line.number)) return true;
            }
            return false;
        };
        steps.work = [&](int worker, NumberedLine& line) { return SolveLine(games[worker], line, options); };
        steps.take = [&](Solved& solved) {
            if (console.Stopped()) return false;
            if (solved.failure.empty()) {
                ++solvedCount;
                output.Add(solved.record);
            } else {
                ++failures;
                progress.Hide();
                SayOfPuzzle(console, options.file, solved.number, solved.failure);
            }
            report.Add(options.json ? "" : TextOf(solved), options.json ? JsonOf(solved, options.links) : Json());
            progress.Show(solved.part, std::to_string(solvedCount) + " solved, " + std::to_string(failures) + " not");
            return true;
        };
        OrderedWork<NumberedLine, Solved>(std::move(steps)).Run(options.jobs);
    }
    if (!console.Stopped()) {
        failures += SayIfMissing(console, options.file, options.range, lines.Number());
        output.Finish();
    }
    return ExitCodeOf(console, failures);
}

}  // namespace tidewalk
