// SPDX-License-Identifier: MIT
// The command "list".
#include <memory>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"
#include "model/load_puzzle.h"

namespace tidewalk {

int ListPuzzles(Console& console, const ListOptions& options) {
    LineReader lines(console, options.file);
    Progress progress(console, true);
    const auto puzzle = std::make_unique<Puzzle>();
    int failures = 0;
    {
        Report report(console, options.json);
        NumberedLine line;
        while (lines.Next(line)) {
            Json object{{"number", line.number}};
            if (!ReadPuzzleRecord(line.text, *puzzle)) {
                ++failures;
                progress.Hide();
                SayOfPuzzle(console, options.file, line.number, kNoRecord);
                object["error"] = kNoRecord;
                report.Add("", object);
                continue;
            }
            const PuzzleFacts facts = FactsOf(*puzzle);
            AddSize(object, *puzzle);
            object["islands"] = facts.islands;
            object["bridges"] = facts.bridges;
            object["solution"] = facts.solution;
            report.Add(LineStart(line.number, *puzzle) + "  " + Padded(std::to_string(facts.islands), 3) +
                           " islands  " + Padded(std::to_string(facts.bridges), 3) + " bridges  solution " +
                           facts.solution,
                       object);
            progress.Show(line.part, std::to_string(line.number) + " puzzles");
        }
    }
    return ExitCodeOf(console, failures);
}

}  // namespace tidewalk
