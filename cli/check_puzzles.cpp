// SPDX-License-Identifier: MIT
// The command "check".
#include <chrono>
#include <optional>
#include <sstream>
#include <utility>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/ordered_work.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"
#include "model/load_puzzle.h"
#include "solver/count_solutions.h"

namespace tidewalk {

namespace {

struct Checked {
    int number = 0;
    double part = -1;
    bool isRecord = false;
    std::string lineStart;
    int rows = 0;
    int cols = 0;
    std::string stored;          ///< "none", "valid" or "wrong"
    std::optional<int> counted;  ///< 0, 1, or 2 for more; nothing when there was no time to tell
};

/// Counts the solutions up to two, for as long as there is time.
std::optional<int> CountInTime(Console& console, const Puzzle& puzzle, double seconds) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const auto mayGoOn = [&] {
        // The results' stream belongs to another thread, so only the signal is looked at.
        return console.stopSignal == 0 && std::chrono::duration<double>(Clock::now() - start).count() < seconds;
    };
    return CountSolutionsWhile(puzzle.GivenGrid, puzzle.Rows, puzzle.Cols, 2, mayGoOn);
}

Checked CheckLine(Console& console, Puzzle& puzzle, const NumberedLine& line, double seconds) {
    Checked checked;
    checked.number = line.number;
    checked.part = line.part;
    checked.isRecord = ReadPuzzleRecord(line.text, puzzle);
    if (!checked.isRecord) return checked;
    checked.lineStart = LineStart(line.number, puzzle);
    checked.rows = puzzle.Rows;
    checked.cols = puzzle.Cols;
    checked.stored = FactsOf(puzzle).solution;
    checked.counted = CountInTime(console, puzzle, seconds);
    return checked;
}

std::string SolutionsWord(const Checked& checked) {
    if (!checked.counted) return "undecided";
    return *checked.counted == 0 ? "none" : *checked.counted == 1 ? "one" : "several";
}

/// What is wrong with the puzzle; "" when nothing is.
std::string FaultOf(const Checked& checked, double seconds) {
    if (!checked.isRecord) return kNoRecord;
    std::string fault = checked.stored == "wrong" ? "the stored bridges are no solution" : "";
    const auto add = [&fault](const std::string& text) { fault += (fault.empty() ? "" : "; ") + text; };
    if (!checked.counted) {
        std::ostringstream text;
        text << "undecided after " << seconds << " s";
        add(text.str());
    } else if (*checked.counted != 1) {
        add(*checked.counted == 0 ? "there is no solution" : "there is more than one solution");
    }
    return fault;
}

Json JsonOf(const Checked& checked, const std::string& fault) {
    Json object{{"number", checked.number}};
    if (checked.isRecord) {
        object["rows"] = checked.rows;
        object["cols"] = checked.cols;
        object["stored"] = checked.stored;
        object["solutions"] = SolutionsWord(checked);
        object["unique"] = checked.counted ? Json(*checked.counted == 1) : Json(nullptr);
    }
    if (!fault.empty()) object["error"] = fault;
    return object;
}

std::string TextOf(const Checked& checked) {
    if (!checked.isRecord) return "";
    return checked.lineStart + "  stored " + Padded(checked.stored, -5) + "  solutions " + SolutionsWord(checked);
}

}  // namespace

int CheckPuzzles(Console& console, const CheckOptions& options) {
    LineReader lines(console, options.file);
    Progress progress(console, true);
    std::vector<Puzzle> puzzles(static_cast<std::size_t>(options.jobs));
    int failures = 0;
    {
        Report report(console, options.json);
        WorkSteps<NumberedLine, Checked> steps;
        steps.next = [&](NumberedLine& line) { return lines.Next(line); };
        steps.work = [&](int worker, NumberedLine& line) {
            return CheckLine(console, puzzles[static_cast<std::size_t>(worker)], line, options.seconds);
        };
        steps.take = [&](Checked& checked) {
            if (console.Stopped()) return false;
            const std::string fault = FaultOf(checked, options.seconds);
            if (!fault.empty()) {
                ++failures;
                progress.Hide();
                SayOfPuzzle(console, options.file, checked.number, fault);
            }
            report.Add(TextOf(checked), JsonOf(checked, fault));
            progress.Show(checked.part, std::to_string(checked.number) + " puzzles");
            return true;
        };
        OrderedWork<NumberedLine, Checked>(std::move(steps)).Run(options.jobs);
    }
    return ExitCodeOf(console, failures);
}

}  // namespace tidewalk
