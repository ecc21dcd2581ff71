// SPDX-License-Identifier: MIT
// The command "check".
#include <algorithm>
#include <chrono>
#include <optional>
#include <sstream>
#include <utility>
#include <vector>

#include "cli/collection_run.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "solver/count_solutions.h"

namespace tidewalk {

namespace {

/// Up to two solutions; nothing when there was no time to tell.
using Solutions = std::optional<std::vector<SpanBridges>>;

/// Looks for two solutions, for as long as there is time.
Solutions FindInTime(const Archipelago& board, double seconds, const MayGoOn& mayGoOn) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    return FindSolutions(board, kSeveral, [&] {
        return mayGoOn() && std::chrono::duration<double>(Clock::now() - start).count() < seconds;
    });
}

std::string Word(const Solutions& solutions) {
    if (!solutions) return "undecided";
    return solutions->empty() ? "none" : solutions->size() == 1 ? "one" : "several";
}

/// The bridges of each solution. In which order they were found is nobody's business.
JsonTexts TextsOf(const Archipelago& board, const std::vector<SpanBridges>& solutions) {
    std::vector<BridgedPairs> ordered;
    ordered.reserve(solutions.size());
    for (const SpanBridges& solution : solutions)
        ordered.push_back(BridgesOf(board, solution));
    std::sort(ordered.begin(), ordered.end());
    JsonTexts texts;
    texts.reserve(ordered.size());
    for (const BridgedPairs& bridges : ordered)
        texts.push_back(BridgeTexts(bridges));
    return texts;
}

/// What is wrong with a puzzle; "" when nothing is.
std::string FaultOf(StoredSolution stored, const Solutions& solutions, double seconds) {
    std::string fault = stored == StoredSolution::Wrong      ? "the stored bridges are no solution"
                        : stored == StoredSolution::CutShort ? kCutShort
                                                             : "";
    const auto add = [&fault](const std::string& text) { fault += (fault.empty() ? "" : "; ") + text; };
    if (!solutions) {
        std::ostringstream text;
        text << "undecided after " << seconds << " s";
        add(text.str());
    } else if (solutions->size() != 1) {
        add(solutions->empty() ? "there is no solution" : "there is more than one solution");
    }
    return fault;
}

PuzzleReport Checked(const NumberedLine& line, const CheckOptions& options, const MayGoOn& mayGoOn) {
    constexpr int kStoredWidth = 5;
    PuzzleReport report;
    const std::optional<Puzzle> puzzle = BeginReport(line, report);
    if (!puzzle) return report;
    const StoredSolution stored = JudgeStored(*puzzle);
    const Archipelago board(*puzzle);
    const Solutions solutions = FindInTime(board, options.seconds, mayGoOn);
    report.fault = FaultOf(stored, solutions, options.seconds);
    report.line += "  stored " + Padded(Word(stored), -kStoredWidth) + "  solutions " + Word(solutions);
    report.fields.emplace_back("stored", Word(stored));
    report.fields.emplace_back("solutions", Word(solutions));
    report.fields.emplace_back("unique", solutions ? JsonValue(solutions->size() == 1) : JsonValue(nullptr));
    const bool several = solutions && solutions->size() == kSeveral;
    if (several && options.json) report.fields.emplace_back("different", TextsOf(board, *solutions));
    return report;
}

}  // namespace

int CheckPuzzles(Console& console, const CheckOptions& options) {
    return ReportOnCollection(
        console, {options.file, options.range, options.jobs, options.json},
        [&](const NumberedLine& line) { return Checked(line, options, UntilStopSignal(console)); });
}

}  // namespace tidewalk
