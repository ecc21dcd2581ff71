// SPDX-License-Identifier: MIT
// The command "list".
#include <optional>

#include "cli/collection_run.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"

namespace tidewalk {

namespace {

/// The stored bridges; a double bridge counts 2.
int BridgeCount(const Puzzle& puzzle) {
    int bridges = 0;
    for (const Link& link : puzzle.LinkList)
        bridges += link.Bridges();
    return bridges;
}

PuzzleReport Listed(const NumberedLine& line, bool grades, const MayGoOn& mayGoOn) {
    constexpr int kCountWidth = 3;
    PuzzleReport report;
    const std::optional<Puzzle> puzzle = BeginReport(line, report);
    if (!puzzle) return report;
    const int islands = puzzle->IslandCount();
    const int bridges = BridgeCount(*puzzle);
    const std::string solution = Word(JudgeStored(*puzzle));
    report.line += "  " + Padded(std::to_string(islands), kCountWidth) + " islands  " +
                   Padded(std::to_string(bridges), kCountWidth) + " bridges  solution " + solution;
    report.fields.emplace_back("islands", islands);
    report.fields.emplace_back("bridges", bridges);
    report.fields.emplace_back("solution", solution);
    if (grades) AddAssessment(report, AssessPuzzle(*puzzle, mayGoOn));
    return report;
}

}  // namespace

int ListPuzzles(Console& console, const ListOptions& options) {
    return ReportOnCollection(
        console, {options.file, options.range, options.jobs, options.json},
        [&](const NumberedLine& line) { return Listed(line, options.grades, WithinBounds(console)); });
}

}  // namespace tidewalk
